#include "tweak/library/track_lock.h"

#include "tweak/Sonavue2.h"
#include "tweak/motion/album_table_slide.h"

namespace sonavue {
namespace {

constexpr unsigned kTicksOfLock = 2;

}  // namespace

bool lock_track() {
  if (changeTrack) return false;
  changeTrack = YES;
  return true;
}

void start_track_lock() {
  // Firing it now is the first tick. The second, one interval later, releases the lock.
  NSTimer::scheduledTimerWithTimeInterval(time_wait, Spring, "change:"_sel, nil, YES).fire();
}

NSIndexPath begin_track_change(NSIndexPath path) {
  if (!lock_track()) return nil;
  start_track_lock();
  return path;
}

void change(SpringBoard, NSTimer timer) {
  ++p;
  if (p != kTicksOfLock) return;
  p = 0;
  timer.invalidate();
  changeTrack = NO;
  hide_album_table();
}

}  // namespace sonavue
