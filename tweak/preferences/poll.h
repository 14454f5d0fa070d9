#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// The poll, every tenth of a second: when the settings side has cleared "checked", sets it and
/// applies every setting.
void changePreferences(SpringBoard self);

}  // namespace sonavue
