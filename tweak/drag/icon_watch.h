#pragma once

#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UIView.h"

// The pan recogniser on the Music icon.

namespace sonavue {

void remove_gesture_recognizers(UIView view);

/// Replaces all recognisers of `musicIcon` with a new pan: the home screen's own recognisers would
/// compete with it.
void attach_drag(SpringBoard self);

/// The same at launch, if the settings and the icon's position allow the drag.
void attach_first_drag(SpringBoard self);

/// Runs every tenth of a second. Keeps the pan on the current view of the Music icon, and removes
/// it in folders and while icons are being arranged.
void Loping1(SpringBoard self);

}  // namespace sonavue
