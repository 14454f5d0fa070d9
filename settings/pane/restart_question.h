#pragma once

#include "settings/pane/style_page.h"

namespace sonavue {

/// "apex" takes effect only when the home screen restarts. Keeps the wanted value and asks the user
/// whether to restart.
void ask_for_restart(styleController page, objc::Object wanted);

/// Handles the user's answer: stores the wanted value and restarts the home screen, or resets the
/// switch.
void restart_answered(styleController page, NSInteger button);

}  // namespace sonavue
