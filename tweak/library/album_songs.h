#pragma once

#include "objc/ref.h"
#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UIScrollView.h"
#include "platform/UIKit/UITapGestureRecognizer.h"

namespace sonavue {

/// A square grid, `side` points wide, of the songs of the tile's album; each fades in. Scrolls, and
/// always bounces.
[[nodiscard]] objc::Ref<UIScrollView> make_song_grid(SpringBoard self, UIView tile, CGFloat side);

/// Plays the song of the tapped tile and zooms out. A song that is not in the list of songs is left
/// alone; while nothing is loaded the system starts playing by itself instead.
void playSongInAlbum(SpringBoard self, UITapGestureRecognizer tap);

}  // namespace sonavue
