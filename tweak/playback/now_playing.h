#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// Runs every second and updates the play button, ring, artwork, texts, current album and layout.
void infoMusic(SpringBoard self);

}  // namespace sonavue
