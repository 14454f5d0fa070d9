#pragma once

#include "settings/pane/style_page.h"

namespace sonavue {

/// "apex" counts only from a start of the home screen. Keeps what is wanted and asks first.
void ask_for_restart(styleController page, objc::Object wanted);

/// What the user has answered: stores what was wanted and restarts the home screen, or lets the
/// switch spring back.
void restart_answered(styleController page, NSInteger button);

}  // namespace sonavue
