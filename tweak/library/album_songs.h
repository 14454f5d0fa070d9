#pragma once

#include "objc/ref.h"
#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UIScrollView.h"
#include "platform/UIKit/UITapGestureRecognizer.h"

namespace sonavue {

/// A square grid, `side` points wide, with the songs of the tile's album, which fade in. It scrolls
/// and bounces even if everything fits.
[[nodiscard]] objc::Ref<UIScrollView> make_song_grid(SpringBoard self, UIView tile, CGFloat side);

/// Plays the song of the tapped tile and zooms out. A no-op for a song that is not in the list of
/// songs. If nothing is loaded, the system starts playing a song that it chooses.
void playSongInAlbum(SpringBoard self, UITapGestureRecognizer tap);

}  // namespace sonavue
