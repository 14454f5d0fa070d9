#include "tweak/playback/transport.h"

#include "platform/Foundation/NSIndexPath.h"
#include "tweak/library/song_cell.h"
#include "tweak/library/song_list.h"
#include "tweak/look/geometry.h"
#include "tweak/motion/album_table_slide.h"

namespace sonavue {
namespace {

constexpr double kTableSlide = 0.2;
constexpr unsigned kTicksOfLock = 2;

void hide_album_table() {
  UIView::animateWithDuration(kTableSlide, objc::block([] { slide_album_table_aside(); }));
}

NSInteger song_count() {
  return static_cast<NSInteger>(songItems.count());
}

// No selection counts as the first row.
NSInteger selected_row() {
  return tableView.indexPathForSelectedRow().row();
}

NSInteger row_before() {
  const NSInteger row = selected_row();
  return (row == 0 ? song_count() : row) - 1;
}

NSInteger row_after() {
  const NSInteger row = selected_row() + 1;
  return row == song_count() ? 0 : row;
}

void change_track(NSInteger (*target_row)()) {
  if (isGrabbing || changeTrack) return;
  changeTrack = YES;
  if (!mc.isPlaying()) mc.togglePlayPause();
  musicPlayer.setQueueWithQuery(fullList);
  musicPlayer.prepareToPlay();
  musicPlayer.play();
  const auto source = Musicz::alloc().init();
  source.didSelectRowAtIndexPath(tableView, NSIndexPath::indexPathForRow(target_row(), 0));
  source.release();
  start_track_lock();
}

}  // namespace

void playStop(SpringBoard) {
  if (isGrabbing) return;
  mc.togglePlayPause();
  hide_album_table();
}

void playBackSong(SpringBoard) {
  change_track(&row_before);
}
void playNextSong(SpringBoard) {
  change_track(&row_after);
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
