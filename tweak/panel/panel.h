#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// Makes the panel's windows and views, once, hidden, and puts the drag on the Music icon. Says
/// NO, having made only the backdrop, on a phone without the Music application.
BOOL build_panel(SpringBoard self);

}  // namespace sonavue
