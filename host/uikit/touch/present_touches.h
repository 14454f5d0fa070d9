#pragma once

#include <vector>

#include "objc/ref.h"
#include "platform/UIKit/UITouch.h"

namespace host::uikit {

/// The touches of the process: of the fingers on the screen, and of those that have lifted while a
/// view still waits to hear of it.
const std::vector<objc::Ref<UITouch>>& present_touches();
/// The fingers on the screen, and those that lifted with the event being sent.
std::vector<objc::Ref<UITouch>> touches_on_screen();

void add_present_touch(UITouch touch);
/// Forgets those that have lifted and that no view waits for.
void drop_finished_touches();

}  // namespace host::uikit
