#pragma once

#include "platform/SpringBoard/SpringBoard.h"

// The panel as a banner that hangs from the top of the screen, called from anywhere by a gesture.

namespace sonavue {

/// Brings the banner, unless the panel is open. A banner that hangs already comes down again.
void showBanner(SpringBoard self);

/// Sends the banner away, whatever its form.
void dismissBanner(SpringBoard self);

}  // namespace sonavue
