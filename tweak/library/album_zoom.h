#pragma once

#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UITapGestureRecognizer.h"

namespace sonavue {

/// Zooms in on the album of the tapped tile: it grows to the centre of the strip and shows its
/// songs. A no-op while an album is zoomed, which is the case if the strip does not scroll.
void zoomInAlbum(SpringBoard self, UITapGestureRecognizer tap);

/// Shrinks the zoomed album back to its tile.
void zoomOutAlbum(SpringBoard self, UITapGestureRecognizer tap);

}  // namespace sonavue
