#pragma once

#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UIView.h"

// The drag's recogniser on the Music icon.

namespace sonavue {

void remove_gesture_recognizers(UIView view);

/// Puts a new recogniser on `musicIcon`, in place of every recogniser that it has: the home
/// screen's own would compete with the drag.
void attach_drag(SpringBoard self);

/// The same at start-up, where the settings and the icon's place allow the drag.
void attach_first_drag(SpringBoard self);

/// Every tenth of a second: keeps the drag on the present Music icon, and off it in folders and
/// while the icons are being arranged.
void Loping1(SpringBoard self);

}  // namespace sonavue
