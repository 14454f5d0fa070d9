#pragma once

#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UITapGestureRecognizer.h"

namespace sonavue {

/// Zooms in on the album of the tapped tile: it grows to the middle of the strip and shows its
/// songs. Nothing happens while an album is zoomed, which is when the strip does not scroll.
void zoomInAlbum(SpringBoard self, UITapGestureRecognizer tap);

/// Brings the zoomed album back among the others.
void zoomOutAlbum(SpringBoard self, UITapGestureRecognizer tap);

}  // namespace sonavue
