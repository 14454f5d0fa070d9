#include "host/springboard/processes/player_desk.h"

#include <algorithm>
#include <cmath>

#include "host/springboard/common/configuration.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/processes/application_process.h"
#include "platform/MediaPlayer/MPMusicPlayerController.h"
#include "platform/SpringBoard/SBMediaController.h"

namespace host::springboard {

using namespace application;

namespace {

constexpr double kPollInterval = 0.25;
// In seconds: how far the position extrapolated by the clock may differ from the player's own.
constexpr double kElapsedTolerance = 0.4;

// Spelled out, because a home screen without the media classes lacks the constants.
const char* const kPersistentId = "persistentID";
const char* const kPlaybackDuration = "playbackDuration";

MPMusicPlayerController player() {
  return MPMusicPlayerController::iPodMusicPlayer();
}

double number_of(MPMediaItem item, NSString property) {
  const auto number = item.valueForProperty(property);
  return number ? objc::send<double>(number, "doubleValue"_sel) : 0;
}

std::uint64_t song_id(MPMediaItem item) {
  const auto number = item.valueForProperty(to_ns(kPersistentId));
  return number ? objc::send<unsigned long long>(number, "unsignedLongLongValue"_sel) : 0;
}

PlaybackIs playback_now() {
  PlaybackIs found;
  found.volume = SBMediaController::sharedInstance().volume();
  if (const auto number = configuration().library_number) found.library = number();
  const MPMediaItem item = player().nowPlayingItem();
  if (!item) return found;
  found.song = song_id(item);
  found.is_playing = player().playbackState() == MPMusicPlaybackStatePlaying;
  found.elapsed = player().currentPlaybackTime();
  found.duration = number_of(item, to_ns(kPlaybackDuration));
  if (!std::isfinite(found.elapsed)) found.elapsed = 0;
  return found;
}

void play_song(std::uint64_t song) {
  const objc::Object number = objc::send<objc::Object>(objc::Object(objc_getClass("NSNumber")),
                                                       "numberWithUnsignedLongLong:"_sel,
                                                       static_cast<unsigned long long>(song));
  const auto query = MPMediaQuery::alloc().init().autorelease();
  query.addFilterPredicate(
      MPMediaPropertyPredicate::predicateWithValue(number, to_ns(kPersistentId)));
  const NSArray found = query.items();
  if (found.count() == 0) return;
  player().setQueueWithQuery(MPMediaQuery::alloc().init().autorelease());
  player().setNowPlayingItem(objc::cast<MPMediaItem>(found.objectAtIndex(0)));
  player().play();
}

}  // namespace

PlayerDesk::~PlayerDesk() {
  if (poll_timer_ && RunLoop::has_main()) RunLoop::main().remove_timer(*poll_timer_);
}

void PlayerDesk::carry_out(const SteerPlayer& command) {
  const SBMediaController media = SBMediaController::sharedInstance();
  switch (command.command) {
    case PlayerCommand::PlaySong:
      play_song(command.song);
      break;
    case PlayerCommand::Toggle:
      media.togglePlayPause();
      break;
    case PlayerCommand::Next:
      media.changeTrack(1);
      break;
    case PlayerCommand::Previous:
      media.changeTrack(-1);
      break;
    case PlayerCommand::Seek:
      player().setCurrentPlaybackTime(std::max(command.value, 0.0));
      break;
    case PlayerCommand::SetVolume:
      media.setVolume(static_cast<float>(std::clamp(command.value, 0.0, 1.0)));
      break;
    case PlayerCommand::ReadChoices:
      objc::send<void>(media, "_musicChoicesChanged"_sel);
      break;
  }
  poll_soon();
}

void PlayerDesk::watch(bool watches) {
  RunLoop& loop = RunLoop::main();
  if (poll_timer_) loop.remove_timer(*poll_timer_);
  poll_timer_.reset();
  reported_.reset();
  if (!watches) return;
  poll_timer_ = loop.add_timer(loop.now() + kPollInterval, kPollInterval, [this] { poll(); });
  poll_soon();
}

void PlayerDesk::poll_soon() {
  RunLoop::main().perform([this, life = std::weak_ptr<void>(life_)] {
    if (!life.expired()) poll();
  });
}

void PlayerDesk::poll() {
  ApplicationProcess* front = front_();
  if (!front || !SBMediaController::cls()) return;
  const PlaybackIs now = playback_now();
  const double time = RunLoop::main().now();
  const bool same = reported_ && reported_->song == now.song &&
                    reported_->is_playing == now.is_playing && reported_->volume == now.volume &&
                    reported_->duration == now.duration && reported_->library == now.library;
  const double expected =
      same ? reported_->elapsed + (now.is_playing ? time - reported_at_ : 0) : 0;
  if (same && std::abs(expected - now.elapsed) <= kElapsedTolerance) return;
  reported_ = now;
  reported_at_ = time;
  front->send(now);
}

}  // namespace host::springboard
