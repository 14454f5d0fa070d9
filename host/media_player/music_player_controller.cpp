#include "host/media_player/music_player_controller.h"

#include <fmt/format.h>

#include "host/media/log.h"
#include "host/media_player/media_item.h"
#include "host/media_player/media_service.h"
#include "host/media_player/playback_state.h"
#include "host/media_player/query.h"
#include "platform/Foundation/NSNotificationCenter.h"
#include "platform/Foundation/NSValue.h"

// Loaded libraries bind to these in the executable.
#pragma GCC visibility push(default)
extern "C" {
NSString MPMusicPlayerControllerPlaybackStateDidChangeNotification;
NSString MPMusicPlayerControllerNowPlayingItemDidChangeNotification;
}
#pragma GCC visibility pop

namespace host::media_player {
namespace {

Playback* playback() {
  MediaService* service = MediaService::current();
  return service ? &service->playback() : nullptr;
}

MusicChoices choices() {
  const MediaService* service = MediaService::current();
  return service ? service->choices() : MusicChoices();
}

template <class Choice>
void choose(Choice MusicChoices::*member, Choice choice) {
  MediaService* service = MediaService::current();
  if (!service) return;
  MusicChoices choices = service->choices();
  choices.*member = choice;
  service->choose(choices);
}

// One for the life of the process: a library loaded early may keep it.
MPMusicPlayerController ipod_music_player(objc::Object) {
  static const MPMusicPlayerController player = MPMusicPlayerController::alloc().init();
  return player;
}

}  // namespace

void MusicPlayerController::set_queue_with_query(MPMediaQuery query) {
  Playback* const player = playback();
  if (player && query) player->set_queue(objc::state_of<Query>(query).songs());
}

MPMediaItem MusicPlayerController::now_playing_item() {
  MediaService* service = MediaService::current();
  return service ? service->now_playing_item() : MPMediaItem();
}

void MusicPlayerController::set_now_playing_item(MPMediaItem item) {
  Playback* const player = playback();
  if (!player || !item) return;
  const media::Track* track = objc::state_of<MediaItem>(item).track();
  if (!track || player->set_current(track->id)) return;
  media::log_warning(fmt::format("\"{}\" is not in the queue and cannot be played", track->title));
}

MPMusicPlaybackState MusicPlayerController::playback_state() {
  const Playback* player = playback();
  return player ? platform_state(player->state()) : MPMusicPlaybackStateStopped;
}

void MusicPlayerController::prepare_to_play() {
  if (Playback* player = playback()) player->prepare();
}

void MusicPlayerController::play() {
  if (Playback* player = playback()) player->play();
}

void MusicPlayerController::pause() {
  if (Playback* player = playback()) player->pause();
}

void MusicPlayerController::stop() {
  if (Playback* player = playback()) player->stop();
}

double MusicPlayerController::current_playback_time() {
  const Playback* player = playback();
  return player ? player->position() : 0;
}

void MusicPlayerController::set_current_playback_time(double seconds) {
  if (Playback* player = playback()) player->seek(seconds);
}

MPMusicRepeatMode MusicPlayerController::repeat_mode() {
  return platform_repeat(choices().repeat);
}

// The default mode is what the user has chosen already.
void MusicPlayerController::set_repeat_mode(MPMusicRepeatMode mode) {
  for (const auto repeat : {media::Repeat::none, media::Repeat::one, media::Repeat::all})
    if (platform_repeat(repeat) == mode) choose(&MusicChoices::repeat, repeat);
}

MPMusicShuffleMode MusicPlayerController::shuffle_mode() {
  return choices().shuffles ? MPMusicShuffleModeSongs : MPMusicShuffleModeOff;
}

void MusicPlayerController::set_shuffle_mode(MPMusicShuffleMode mode) {
  if (mode == MPMusicShuffleModeOff) choose(&MusicChoices::shuffles, false);
  if (mode == MPMusicShuffleModeSongs || mode == MPMusicShuffleModeAlbums)
    choose(&MusicChoices::shuffles, true);
}

void MusicPlayerController::playback_state_did_change(NSInteger state) {
  const NSDictionary details = NSDictionary::dictionaryWithObject(
      NSNumber::numberWithInteger(state), "MPMusicPlayerControllerPlaybackStateKey"_ns);
  NSNotificationCenter::defaultCenter().postNotificationName(
      MPMusicPlayerControllerPlaybackStateDidChangeNotification, self, details);
}

void export_music_player_controller() {
  if (objc_getClass("MPMusicPlayerController")) return;
  MPMusicPlayerControllerPlaybackStateDidChangeNotification =
      "MPMusicPlayerControllerPlaybackStateDidChangeNotification"_ns;
  MPMusicPlayerControllerNowPlayingItemDidChangeNotification =
      "MPMusicPlayerControllerNowPlayingItemDidChangeNotification"_ns;
  using Controller = MusicPlayerController;
  objc::ClassBuilder("MPMusicPlayerController", "NSObject")
      .state<Controller>()
      .class_method<&ipod_music_player>("iPodMusicPlayer")
      .method<&Controller::set_queue_with_query>("setQueueWithQuery:")
      .method<&Controller::now_playing_item>("nowPlayingItem")
      .method<&Controller::set_now_playing_item>("setNowPlayingItem:")
      .method<&Controller::playback_state>("playbackState")
      .method<&Controller::prepare_to_play>("prepareToPlay")
      .method<&Controller::play>("play")
      .method<&Controller::pause>("pause")
      .method<&Controller::stop>("stop")
      .method<&Controller::current_playback_time>("currentPlaybackTime")
      .method<&Controller::set_current_playback_time>("setCurrentPlaybackTime:")
      .method<&Controller::repeat_mode>("repeatMode")
      .method<&Controller::set_repeat_mode>("setRepeatMode:")
      .method<&Controller::shuffle_mode>("shuffleMode")
      .method<&Controller::set_shuffle_mode>("setShuffleMode:")
      .method<&Controller::playback_state_did_change>("_playbackStateDidChange:")
      .finish();
}

}  // namespace host::media_player
