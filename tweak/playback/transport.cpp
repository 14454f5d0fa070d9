#include "tweak/playback/transport.h"

#include "objc/ref.h"
#include "platform/Foundation/NSIndexPath.h"
#include "tweak/Sonavue2.h"
#include "tweak/library/song_list.h"
#include "tweak/library/track_lock.h"
#include "tweak/motion/album_table_slide.h"

namespace sonavue {
namespace {

NSInteger song_count() {
  return static_cast<NSInteger>(songItems.count());
}

// Without a selection, the first row.
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
  if (isGrabbing || !lock_track()) return;
  if (!mc.isPlaying()) mc.togglePlayPause();
  musicPlayer.setQueueWithQuery(fullList);
  musicPlayer.prepareToPlay();
  musicPlayer.play();
  const auto source = objc::adopt(Musicz::alloc().init());
  source->didSelectRowAtIndexPath(tableView, NSIndexPath::indexPathForRow(target_row(), 0));
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

}  // namespace sonavue
