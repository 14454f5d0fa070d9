#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// Runs every tenth of a second. If the settings have cleared "checked", sets it again and applies
/// every setting.
void changePreferences(SpringBoard self);

}  // namespace sonavue
