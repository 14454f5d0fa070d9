#pragma once

#include "platform/UIKit/UIGestureRecognizer.h"
#include "platform/UIKit/UIView.h"

namespace host::uikit {

/// Takes the fingers away that lie on the view or on anything in it: views and recognisers hear
/// that they are cancelled, and nobody hears of these fingers again until they land anew. Those
/// that `but_for` sees stay.
void cancel_touches_in(UIView view, UIGestureRecognizer but_for = nil);

}  // namespace host::uikit
