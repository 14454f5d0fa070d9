#pragma once

#include "platform/SpringBoard/SpringBoard.h"

// The panel's windows, the backdrop, and the icon's twin, which is shown because the windows cover
// the icon itself.

namespace sonavue {

void make_windows();
void make_backdrop();
void make_icon_twin(SpringBoard self);
/// Adds the tap on the backdrop and the pan on the twin, which close the panel.
void make_closing_gestures(SpringBoard self);

}  // namespace sonavue
