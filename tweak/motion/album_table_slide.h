#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// The double tap on the artwork: slides the current album's table in with a damped bounce, or out
/// without one.
void showTable(SpringBoard self);

/// Moves the current album's table out of the artwork, to the right, without animation.
void slide_album_table_aside();

/// The same with animation.
void hide_album_table();

}  // namespace sonavue
