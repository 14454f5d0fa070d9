#pragma once

#include "platform/Foundation/NSIndexPath.h"
#include "platform/Foundation/NSTimer.h"
#include "platform/SpringBoard/SpringBoard.h"

// The lock of a track change: after one track change, no other begins for `time_wait` seconds,
// which the player needs.

namespace sonavue {

/// For a row that is about to be selected. Returns nil, which refuses the selection, while a track
/// change is under way; otherwise locks further changes and returns `path`.
NSIndexPath begin_track_change(NSIndexPath path);

/// Takes the lock for a change that does not come from a row. Returns false while another is under
/// way. Does not start the timer.
bool lock_track();

/// Starts the timer that releases the lock after `time_wait`.
void start_track_lock();

/// A tick of that timer. The second one releases the lock.
void change(SpringBoard self, NSTimer timer);

}  // namespace sonavue
