#include "host/media_player/media_controller.h"

#include "host/media_player/exports.h"
#include "host/media_player/media_item.h"
#include "host/media_player/media_service.h"
#include "platform/Foundation/NSNotificationCenter.h"

namespace host::media_player {
namespace {

SBMediaController shared_instance(objc::Object) {
  static const SBMediaController controller = SBMediaController::alloc().init();
  return controller;
}

BOOL is_in_state(media::PlaybackState state) {
  MediaService* service = MediaService::current();
  return service && service->playback().state() == state ? YES : NO;
}

media::EngineState engine() {
  MediaService* service = MediaService::current();
  return service ? service->playback().engine() : media::EngineState{};
}

}  // namespace

BOOL MediaController::is_playing() {
  return is_in_state(media::PlaybackState::playing);
}

BOOL MediaController::is_paused() {
  return is_in_state(media::PlaybackState::paused);
}

BOOL MediaController::has_track() {
  MediaService* service = MediaService::current();
  return service && service->playback().song() ? YES : NO;
}

BOOL MediaController::toggle_play_pause() {
  MediaService* service = MediaService::current();
  return service && service->toggle() ? YES : NO;
}

BOOL MediaController::change_track(int direction) {
  if (!has_track() || direction == 0) return NO;
  Playback& playback = MediaService::current()->playback();
  if (direction > 0) {
    playback.next();
  } else {
    playback.previous();
  }
  return YES;
}

float MediaController::volume() {
  MediaService* service = MediaService::current();
  return service ? static_cast<float>(service->playback().volume()) : 0;
}

void MediaController::set_volume(float volume) {
  if (MediaService* service = MediaService::current()) service->playback().set_volume(volume);
}

void MediaController::change_volume_by(float step) {
  self.setVolume(self.volume() + step);
}

void MediaController::system_volume_changed(objc::Object) {
  NSNotificationCenter::defaultCenter().postNotificationName(
      "SBMediaControllerVolumeDidChangeNotification"_ns, self, nil);
}

void MediaController::music_choices_changed() {
  if (MediaService* service = MediaService::current()) service->choices_changed();
}

NSString MediaController::player_path() {
  const std::string path = engine().path;
  return path.empty() ? NSString() : make_string(path).autorelease();
}

BOOL MediaController::player_is_paused() {
  return engine().is_paused ? YES : NO;
}

double MediaController::player_position() {
  return engine().position_seconds;
}

void export_media_controller() {
  if (objc_getClass("SBMediaController")) return;
  using Controller = MediaController;
  objc::ClassBuilder("SBMediaController", "NSObject")
      .state<Controller>()
      .class_method<&shared_instance>("sharedInstance")
      .method<&Controller::is_playing>("isPlaying")
      .method<&Controller::is_paused>("isPaused")
      .method<&Controller::has_track>("hasTrack")
      .method<&Controller::toggle_play_pause>("togglePlayPause")
      .method<&Controller::change_track>("changeTrack:")
      .method<&Controller::volume>("volume")
      .method<&Controller::set_volume>("setVolume:")
      .method<&Controller::change_volume_by>("_changeVolumeBy:")
      .method<&Controller::system_volume_changed>("_systemVolumeChanged:")
      .method<&Controller::music_choices_changed>("_musicChoicesChanged")
      .method<&Controller::player_path>("_playerPath")
      .method<&Controller::player_is_paused>("_playerIsPaused")
      .method<&Controller::player_position>("_playerPosition")
      .finish();
}

}  // namespace host::media_player
