#pragma once

#include "platform/Foundation/NSIndexPath.h"
#include "platform/Foundation/NSTimer.h"
#include "platform/SpringBoard/SpringBoard.h"

// The lock of a track change: no other begins until the player has had `time_wait` for the last
// one.

namespace sonavue {

/// For a row that is about to be selected: refuses it while a track change is under way; otherwise
/// locks further changes and lets it be selected.
NSIndexPath begin_track_change(NSIndexPath path);

/// The same for a change that no row asks for. False while one is under way.
bool lock_track();

/// Starts the timer that lifts the lock after one `time_wait`.
void start_track_lock();

/// A tick of that timer; the second one lifts the lock.
void change(SpringBoard self, NSTimer timer);

}  // namespace sonavue
