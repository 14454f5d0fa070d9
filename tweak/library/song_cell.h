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

/// Refuses while a track change is under way; otherwise locks further changes and lets the row
/// be selected.
NSIndexPath begin_track_change(NSIndexPath path);

/// Starts the timer that lifts the lock of a track change after one `time_wait`.
void start_track_lock();

}  // namespace sonavue
