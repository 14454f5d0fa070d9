#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// The double tap on the artwork: slides the table of the current album in with a damped bounce,
/// or out again without one.
void showTable(SpringBoard self);

/// Puts the table of the current album out of the artwork, to the right.
void slide_album_table_aside();

/// The same as a motion.
void hide_album_table();

}  // namespace sonavue
