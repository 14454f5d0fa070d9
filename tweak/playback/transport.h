#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

void playStop(SpringBoard self);

/// Plays the song before or after the selected row of the list, wrapping around at the ends.
/// Ignored while a track change is under way or the banner is being dragged.
void playBackSong(SpringBoard self);
void playNextSong(SpringBoard self);

}  // namespace sonavue
