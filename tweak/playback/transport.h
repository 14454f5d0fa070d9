#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

void playStop(SpringBoard self);

/// The song before or after the selected row of the list, round the ends. Refused while a track
/// change is under way or the banner is dragged.
void playBackSong(SpringBoard self);
void playNextSong(SpringBoard self);

}  // namespace sonavue
