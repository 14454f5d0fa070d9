#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// Makes the panel's windows and views, hidden, and attaches the drag to the Music icon. Call it
/// once. On a phone without the Music application it makes only the backdrop and returns NO.
BOOL build_panel(SpringBoard self);

}  // namespace sonavue
