#pragma once

#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"

// The panel as a banner that hangs from the top of the screen, called from anywhere by a gesture.

namespace sonavue {

/// Brings the banner, unless the panel is open. A banner that hangs already comes down anew.
void showBanner(SpringBoard self);

/// The drag of the grabber: down opens the banner, up from where it began sends it away.
void presentBanner(SpringBoard self, UIPanGestureRecognizer pan);

/// Sends the banner away, whatever its form.
void dismissBanner(SpringBoard self);

}  // namespace sonavue
