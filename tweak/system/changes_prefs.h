#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// Applies every setting of the preferences file to the panel. Idempotent for an unchanged file.
void changesPrefs(SpringBoard self);

}  // namespace sonavue
