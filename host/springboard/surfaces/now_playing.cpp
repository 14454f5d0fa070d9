#include "host/springboard/surfaces/now_playing.h"

#include <algorithm>

#include "platform/SpringBoard/SBMediaController.h"

namespace host::springboard {
namespace {

NSString joined(NSString artist, NSString album) {
  if (!artist) return album;
  if (!album) return artist;
  return artist.stringByAppendingString(" \xE2\x80\x94 "_ns).stringByAppendingString(album);
}

}  // namespace

NowPlayingReader::NowPlayingReader()
    : controller_(
          objc::Ref<MPUNowPlayingController>::adopt(MPUNowPlayingController::alloc().init())) {}

double NowPlayingReader::elapsed_at(double now, bool is_playing) {
  const double reported = controller_->currentElapsed();
  if (reported != reported_) {
    reported_ = shown_ = reported;
  } else if (is_playing) {
    shown_ += now - last_;
  }
  last_ = now;
  return shown_;
}

NowPlaying NowPlayingReader::read(double now) {
  NowPlaying found;
  const SBMediaController media = SBMediaController::sharedInstance();
  found.has_track = media.hasTrack();
  if (!found.has_track) return found;
  found.is_playing = media.isPlaying();
  const NSDictionary info = controller_->currentNowPlayingInfo();
  const auto text = [&](NSString key) { return objc::cast<NSString>(info.objectForKey(key)); };
  found.title.reset(text("kMRMediaRemoteNowPlayingInfoTitle"_ns));
  found.line.reset(joined(text("kMRMediaRemoteNowPlayingInfoArtist"_ns),
                          text("kMRMediaRemoteNowPlayingInfoAlbum"_ns)));
  found.artwork.reset(controller_->currentNowPlayingArtwork());
  found.duration = controller_->currentDuration();
  const double elapsed = elapsed_at(now, found.is_playing);
  found.elapsed = found.duration > 0 ? std::min(elapsed, found.duration) : elapsed;
  return found;
}

}  // namespace host::springboard
