#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// The refresh of every second: play image, ring, artwork, texts, current album, layout.
void infoMusic(SpringBoard self);

}  // namespace sonavue
