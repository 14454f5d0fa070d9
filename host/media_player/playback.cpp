#include "host/media_player/playback.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <utility>

#include "host/media_player/playback_state.h"
#include "platform/Foundation/NSNotificationCenter.h"
#include "platform/SpringBoard/SBMediaController.h"

namespace host::media_player {
namespace {

// Before views are laid out, so they show the player's latest state.
constexpr int kTurnOrder = 50;
// Sums of times agree only up to rounding; a song must count as over when its end is checked.
constexpr double kEndSlack = 1e-6;
// How long before a song's end the next one is opened. Until then nothing has been read of it, and
// a change of the queue costs nothing.
constexpr double kOfferAhead = 5;
// Makes each report differ from the previous one, far below anything that can be seen or heard.
constexpr double kReportStep = 1e-6;
constexpr std::uint32_t kReportSteps = 1000;

// On a stepped clock everything happens again in the same way.
std::uint32_t shuffle_seed(media::PlayerPace pace) {
  return pace == media::PlayerPace::stepped ? 1 : std::random_device{}();
}

// The system's objects are told in the next turn, since on the phone the notification comes from
// another process.
void post_volume_change() {
  RunLoop::main().perform([] {
    const auto news = objc::send<objc::Object>(
        objc::Object(objc_getClass("NSNotification")), "notificationWithName:object:"_sel,
        "AVSystemController_SystemVolumeDidChangeNotification"_ns, objc::Object());
    SBMediaController::sharedInstance()._systemVolumeChanged(news);
  });
}

}  // namespace

Playback::Playback(std::unique_ptr<media::Player> player, media::PlayerPace pace,
                   media::QueuePlayer::FileOf file_of)
    : player_(std::move(player)),
      pace_(pace),
      queue_(*player_, std::move(file_of), shuffle_seed(pace)) {
  queue_.on_state_change = [this](media::PlaybackState state) { state_changed(state); };
  queue_.on_song_change = [this] { song_changed(); };
  queue_.on_restart = [this] { report_jump(); };
  watch_ = RunLoop::main().watch(player_->descriptor(), [this] {
    player_->pump();
    // The engine may have learned the song's length.
    if (pace_ == media::PlayerPace::real) follow_end();
  });
  if (pace_ == media::PlayerPace::stepped) {
    turn_ = RunLoop::main().add_turn_observer(kTurnOrder, [this] { player_->pump(); });
  }
}

Playback::~Playback() {
  RunLoop& loop = RunLoop::main();
  loop.unwatch(watch_);
  if (turn_) loop.remove_turn_observer(turn_);
  if (end_) loop.remove_timer(end_);
}

void Playback::set_queue(media::SongList songs) {
  if (songs == queue().list()) return;
  queue_.set_queue(std::move(songs));
  follow_end();
  changed();
}

void Playback::set_repeat(media::Repeat repeat) {
  if (repeat == queue().repeat()) return;
  queue_.set_repeat(repeat);
  follow_end();
  changed();
}

void Playback::set_shuffles(bool shuffles) {
  if (shuffles == queue().shuffles()) return;
  queue_.set_shuffles(shuffles);
  follow_end();
  changed();
}

bool Playback::resume_paused(std::uint64_t id, double seconds) {
  if (!queue_.resume_paused(id, seconds)) return false;
  report();
  return true;
}

void Playback::seek(double seconds) {
  queue_.seek(seconds);
  report_jump();
}

void Playback::set_volume(double volume) {
  const double before = player_->volume();
  player_->set_volume(volume);
  if (player_->volume() == before) return;
  post_volume_change();
  changed();
}

void Playback::report() {
  reports_ = (reports_ + 1) % kReportSteps;
  reported_elapsed_ = song() ? position() + (reports_ + 1) * kReportStep : 0;
  follow_end();
  changed();
}

void Playback::report_jump() {
  report();
  if (song() && on_jump) on_jump();
}

void Playback::state_changed(media::PlaybackState state) {
  report();
  RunLoop::main().perform([state = platform_state(state)] {
    MPMusicPlayerController::iPodMusicPlayer()._playbackStateDidChange(state);
  });
}

void Playback::song_changed() {
  report();
  RunLoop::main().perform([] {
    NSNotificationCenter::defaultCenter().postNotificationName(
        MPMusicPlayerControllerNowPlayingItemDidChangeNotification,
        MPMusicPlayerController::iPodMusicPlayer(), nil);
  });
}

void Playback::follow_end() {
  RunLoop& loop = RunLoop::main();
  if (end_) loop.remove_timer(std::exchange(end_, 0));
  const bool runs = state() == media::PlaybackState::playing && duration() > 0;
  const double rest = std::max(0.0, duration() - position());
  const bool has_offer = runs && pace_ == media::PlayerPace::real && rest <= kOfferAhead;
  if (has_offer) return queue_.offer_next();
  queue_.withdraw_next();
  if (!runs) return;
  if (pace_ == media::PlayerPace::real) {
    end_ = loop.add_timer(loop.now() + rest - kOfferAhead + kEndSlack, 0, [this] {
      end_ = 0;
      follow_end();
    });
    return;
  }
  // With a stepped clock nothing else would wake the loop when a song ends.
  end_ = loop.add_timer(loop.now() + rest + kEndSlack, 0, [this] {
    end_ = 0;
    player_->pump();
  });
}

}  // namespace host::media_player
