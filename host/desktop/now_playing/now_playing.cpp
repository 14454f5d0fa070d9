#include "host/desktop/now_playing/now_playing.h"

#include <cmath>
#include <utility>

#include "host/basics/percent.h"

namespace host::desktop {
namespace {

// The phone's own volume has single precision; no digits of that are worth telling.
constexpr double kVolumeSteps = 1e4;

}  // namespace

NowPlaying::NowPlaying(RunLoop& loop, media_player::MediaService& service, std::string cover_folder)
    : loop_(loop), service_(service), covers_(loop, std::move(cover_folder)) {
  covers_.on_ready = [this] { tell_soon(); };
  service_.add_observer(*this);
  state_ = look();
}

NowPlaying::~NowPlaying() {
  service_.remove_observer(*this);
}

void NowPlaying::add_listener(NowPlayingListener& listener) {
  listeners_.push_back(&listener);
  listener.player_did_change(state_);
}

void NowPlaying::media_did_jump() {
  has_jumped_ = true;
  tell_soon();
}

void NowPlaying::tell_soon() {
  if (std::exchange(tells_soon_, true)) return;
  loop_.perform([this, life = std::weak_ptr<void>(life_)] {
    if (!life.expired() && tells_soon_) tell();
  });
}

void NowPlaying::tell() {
  tells_soon_ = false;
  PlayerState now = look();
  const bool has_changed = now != std::exchange(state_, now);
  const bool has_jumped = std::exchange(has_jumped_, false);
  for (NowPlayingListener* listener : std::vector(listeners_)) {
    if (has_changed) listener->player_did_change(state_);
    if (has_jumped) listener->player_did_jump(position());
  }
}

PlayerState NowPlaying::look() {
  const media_player::Playback& playback = service_.playback();
  PlayerState now;
  now.playback = playback.state();
  now.volume = std::round(playback.volume() * kVolumeSteps) / kVolumeSteps;
  now.repeat = playback.queue().repeat();
  now.shuffles = playback.queue().shuffles();
  now.can_play = service_.can_play();
  now.can_go_next = service_.can_go_next();
  now.can_go_previous = service_.can_go_previous();
  const media::Track* const track = service_.now_playing();
  if (!track) return now;
  now.song = facts_of(*track);
  if (now.song->microseconds <= 0) now.song->microseconds = in_microseconds(playback.duration());
  const media::CoverFile cover = media::cover_of(*track);
  if (const auto file = covers_.file_of(cover)) now.song->cover_address = file_address(*file);
  now.awaits_cover = covers_.is_coming(cover);
  return now;
}

}  // namespace host::desktop
