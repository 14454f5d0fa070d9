#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UIScrollView.h"

namespace host::uikit {

/// How long a touch on a scroll view's content is delayed, in seconds, since it may turn into a
/// drag.
inline constexpr double kContentTouchDelay = 0.15;

/// Returns the recogniser that delays touches and never recognises anything. It fails when the time
/// is over or the finger has lifted; the content then gets the delayed touches.
objc::Ref<UIGestureRecognizer> make_content_touch_delay(UIScrollView view);

void export_content_touch_delay();

}  // namespace host::uikit
