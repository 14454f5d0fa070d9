#include "tweak/playback/now_playing.h"

#include "platform/Foundation/NSIndexPath.h"
#include "tweak/Sonavue2.h"
#include "tweak/appearance/legibility.h"
#include "tweak/panel/idle_layout.h"
#include "tweak/preferences/preferences.h"
#include "ui/assets.h"

namespace sonavue {
namespace {

// Nil for the seeking states, which have no picture.
NSString picture_for_state(int state) {
  switch (state) {
    case MPMusicPlaybackStatePlaying:
      return asset_path<"Pausa.png">();
    case MPMusicPlaybackStateStopped:
    case MPMusicPlaybackStatePaused:
    case MPMusicPlaybackStateInterrupted:
      return asset_path<"Play.png">();
    default:
      return nil;
  }
}

void draw_play_button() {
  if (playbackState == lastState) return;
  const NSString picture = picture_for_state(playbackState);
  if (!picture) return;
  play.setImage(template_image(picture), UIControlStateNormal);
  lastState = playbackState;
}

// The system reports the elapsed time only when something changes. In between, the panel counts one
// second per tick.
void follow_elapsed_time() {
  const double reported = nowPlayingController.currentElapsed();
  if (reported != lastElapsed) {
    lastElapsed = reported;
    elapsed = reported;
    did = YES;
  } else {
    elapsed += 1.0;
  }
}

void move_ring() {
  if (!preference_equals(preference::play(), "volume"_ns, "time"_ns)) return;
  const double duration = nowPlayingController.currentDuration();
  if (elapsed > duration) elapsed = duration;
  ring.setProgress(static_cast<float>(elapsed / duration), YES);
}

void show_artwork() {
  const UIImage artwork = nowPlayingController.currentNowPlayingArtwork();
  art.setImage(artwork);
  cover.setImage(preference_is_on(preference::cover(), YES) ? artwork : nil);
}

/// Sets the texts of the labels and returns the album's title.
NSString show_texts() {
  const NSDictionary info = nowPlayingController.currentNowPlayingInfo();
  const auto text = [&](NSString key) { return objc::cast<NSString>(info.objectForKey(key)); };
  title.setText(text("kMRMediaRemoteNowPlayingInfoTitle"_ns));
  artist.setText(text("kMRMediaRemoteNowPlayingInfoArtist"_ns));
  return text("kMRMediaRemoteNowPlayingInfoAlbum"_ns);
}

bool has_text(MPMediaItem item, NSString property, NSString text) {
  return text && objc::cast<NSString>(item.valueForProperty(property)).isEqualToString(text);
}

// Collects the other songs of the album, and selects the playing song in the list of all songs.
void collect_album(NSString album) {
  songArtist.removeAllObjects();
  NSInteger row = 0;
  for (const auto item : songItems.of<MPMediaItem>()) {
    const bool of_album = has_text(item, MPMediaItemPropertyAlbumTitle, album);
    if (of_album && has_text(item, MPMediaItemPropertyTitle, title.text()) &&
        has_text(item, MPMediaItemPropertyArtist, artist.text())) {
      tableView.selectRowAtIndexPath(NSIndexPath::indexPathForRow(row, 0), YES,
                                     UITableViewScrollPositionNone);
    } else if (of_album) {
      songArtist.addObject(item);
    }
    ++row;
  }
  tablev.reloadData();
}

void refresh_playing() {
  follow_elapsed_time();
  move_ring();
  show_artwork();
  const NSString album = show_texts();
  if (did) {
    if (legibility) colour_for_artwork();
    did = NO;
    collect_album(album);
  }
  if (hide) lay_out_full();
}

void refresh_idle() {
  if (cover.image() && !preference_is_on(preference::cover(), YES)) cover.setImage(nil);
  if (!hide) lay_out_compact();
}

}  // namespace

void infoMusic(SpringBoard) {
  draw_play_button();
  if (mc.isPlaying()) {
    refresh_playing();
  } else {
    refresh_idle();
  }
}

}  // namespace sonavue
