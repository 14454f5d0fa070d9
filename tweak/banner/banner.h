#pragma once

#include "platform/SpringBoard/SpringBoard.h"

// The panel as a banner that hangs from the top of the screen. A gesture brings it from anywhere.

namespace sonavue {

/// Shows the banner, unless the panel is open. If the banner is already shown, it slides in again.
void showBanner(SpringBoard self);

/// Slides the banner out, in whatever form it is shown.
void dismissBanner(SpringBoard self);

}  // namespace sonavue
