#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UIScrollView.h"

namespace host::uikit {

/// Returns the pan recogniser of a scroll view. A finger that lands on moving content stops it and
/// drags it from the first point on.
objc::Ref<UIPanGestureRecognizer> make_scroll_pan(UIScrollView view);

void export_scroll_pan();

}  // namespace host::uikit
