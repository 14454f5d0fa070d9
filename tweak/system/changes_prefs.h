#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// Applies every setting of the preferences file to the panel. Running it twice with the same file
/// changes nothing.
void changesPrefs(SpringBoard self);

}  // namespace sonavue
