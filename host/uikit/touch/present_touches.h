#pragma once

#include <vector>

#include "objc/ref.h"
#include "platform/UIKit/UITouch.h"

namespace host::uikit {

/// Returns the touches of the process: those of fingers on the screen, and those of lifted fingers
/// that a view has not been told about yet. Delivering a touch may add and remove others.
std::vector<objc::Ref<UITouch>> present_touches();
/// Returns the touches of fingers on the screen, and of those that lifted with the event being
/// sent.
std::vector<objc::Ref<UITouch>> touches_on_screen();

void add_present_touch(UITouch touch);
/// Removes touches that have lifted and that no view still waits for.
void drop_finished_touches();

}  // namespace host::uikit
