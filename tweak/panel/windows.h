#pragma once

#include "platform/SpringBoard/SpringBoard.h"

// The panel's windows, the backdrop, and the icon's twin that is seen while the icon itself lies
// under them.

namespace sonavue {

void make_windows();
void make_backdrop();
void make_icon_twin(SpringBoard self);
/// The tap on the backdrop and the drag of the twin.
void make_closing_gestures(SpringBoard self);

}  // namespace sonavue
