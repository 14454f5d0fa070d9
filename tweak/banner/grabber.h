#pragma once

#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"

namespace sonavue {

enum class Grabber {
  kDragging,  // while the banner hangs or is being dragged
  kDone,      // once it is fully open
};

/// Makes the grabber along the lower edge of the backdrop, hidden, with its drag.
void make_grabber(SpringBoard self);

/// Chooses the picture of the grabber.
void show_grabber(Grabber picture);

/// The drag of the grabber: down opens the banner, up from where it began sends it away.
void presentBanner(SpringBoard self, UIPanGestureRecognizer pan);

}  // namespace sonavue
