#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// Adds the strip of album tiles to the pages: two columns, one tile for each album, in the
/// library's order.
void make_album_strip(SpringBoard self);

}  // namespace sonavue
