#pragma once

#include "platform/MediaPlayer/MPMediaItem.h"
#include "platform/UIKit/UITableView.h"

namespace sonavue {

/// The cell of one song, for both tables.
UITableViewCell song_cell(UITableView table, MPMediaItem item);

/// The item's artwork at `size` points; nil if it has none.
UIImage artwork_of(MPMediaItem item, CGSize size);

/// The picture for songs without artwork.
UIImage empty_cover();

/// The item's artwork, or `empty_cover` if it has none.
UIImage artwork_or_empty(MPMediaItem item, CGSize size);

}  // namespace sonavue
