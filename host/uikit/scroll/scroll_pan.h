#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UIScrollView.h"

namespace host::uikit {

/// The pan recogniser of a scroll view. A finger that lands on moving content holds it fast and
/// drags from its first point on.
objc::Ref<UIPanGestureRecognizer> make_scroll_pan(UIScrollView view);

void export_scroll_pan();

}  // namespace host::uikit
