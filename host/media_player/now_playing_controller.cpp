#include "host/media_player/now_playing_controller.h"

#include "host/media_player/exports.h"
#include "host/media_player/media_service.h"

namespace host::media_player {
namespace {

// Enough for a cover across a phone's screen. The panel also blurs it over the whole screen, which
// needs less.
constexpr int kArtworkPixels = 800;

}  // namespace

UIImage NowPlayingController::current_now_playing_artwork() {
  MediaService* service = MediaService::current();
  const media::Track* track = service ? service->now_playing() : nullptr;
  return track ? service->artwork().shown_image(*track, kArtworkPixels, 1) : UIImage();
}

NSDictionary NowPlayingController::current_now_playing_info() {
  MediaService* service = MediaService::current();
  const MPMediaItem item = service ? service->now_playing_item() : MPMediaItem();
  if (!item) return nil;
  const NSMutableDictionary info = NSMutableDictionary::dictionary();
  const auto add = [&](NSString key, NSString property) {
    const objc::Object value = item.valueForProperty(property);
    if (value) info.setObject(value, key);
  };
  add("kMRMediaRemoteNowPlayingInfoTitle"_ns, MPMediaItemPropertyTitle);
  add("kMRMediaRemoteNowPlayingInfoArtist"_ns, MPMediaItemPropertyArtist);
  add("kMRMediaRemoteNowPlayingInfoAlbum"_ns, MPMediaItemPropertyAlbumTitle);
  return info;
}

double NowPlayingController::current_elapsed() {
  MediaService* service = MediaService::current();
  return service ? service->playback().reported_elapsed() : 0;
}

// Until the engine has opened the file, the duration comes from its tags.
double NowPlayingController::current_duration() {
  MediaService* service = MediaService::current();
  if (!service) return 0;
  const double known = service->playback().duration();
  const media::Track* track = service->now_playing();
  return known > 0 || !track ? known : track->duration_seconds;
}

void export_now_playing_controller() {
  if (objc_getClass("MPUNowPlayingController")) return;
  using Controller = NowPlayingController;
  objc::ClassBuilder("MPUNowPlayingController", "NSObject")
      .state<Controller>()
      .method<&Controller::current_now_playing_artwork>("currentNowPlayingArtwork")
      .method<&Controller::current_now_playing_info>("currentNowPlayingInfo")
      .method<&Controller::current_elapsed>("currentElapsed")
      .method<&Controller::current_duration>("currentDuration")
      .finish();
}

}  // namespace host::media_player
