#pragma once

#include "objc/ref.h"
#include "platform/UIKit/UIScrollView.h"

namespace host::uikit {

/// Seconds for which a touch on a scroll view's content is held back, since it may turn out to be
/// the beginning of a drag.
inline constexpr double kContentTouchDelay = 0.15;

/// The recogniser that holds touches back and never recognises anything: it fails when the time is
/// over or the finger has left, and the content then gets what was held.
objc::Ref<UIGestureRecognizer> make_content_touch_delay(UIScrollView view);

void export_content_touch_delay();

}  // namespace host::uikit
