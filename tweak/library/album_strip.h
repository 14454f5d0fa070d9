#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// Makes the strip of album tiles on the pages: two columns, a tile for each album of the library,
/// in the library's order.
void make_album_strip(SpringBoard self);

}  // namespace sonavue
