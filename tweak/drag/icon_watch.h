#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// Every tenth of a second: keeps the drag on the present Music icon, and off it in folders and
/// while the icons are being arranged.
void Loping1(SpringBoard self);

}  // namespace sonavue
