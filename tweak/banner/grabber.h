#pragma once

#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"

namespace sonavue {

enum class Grabber {
  kDragging,  // while the banner hangs or is being dragged
  kDone,      // once it is fully open
};

/// Makes the grabber along the lower edge of the backdrop, with its pan recogniser; hidden at
/// first.
void make_grabber(SpringBoard self);

/// Sets the picture of the grabber.
void show_grabber(Grabber picture);

/// The pan on the grabber: down opens the banner; up, past its starting point, dismisses it.
void presentBanner(SpringBoard self, UIPanGestureRecognizer pan);

}  // namespace sonavue
