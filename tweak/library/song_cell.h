#pragma once

#include "platform/MediaPlayer/MPMediaItem.h"
#include "platform/UIKit/UITableView.h"

namespace sonavue {

/// The cell of one song, as both tables show it.
UITableViewCell song_cell(UITableView table, MPMediaItem item);

/// The item's artwork at `size` points; nil when it has none.
UIImage artwork_of(MPMediaItem item, CGSize size);

/// The picture for songs without one.
UIImage empty_cover();

/// One or the other.
UIImage artwork_or_empty(MPMediaItem item, CGSize size);

}  // namespace sonavue
