#include "host/applications/music/player_state.h"

#include <algorithm>

#include "host/applications/music/library.h"
#include "host/applications/program/player_remote.h"
#include "host/runtime/run_loop.h"

namespace host::music {

void PlayerState::refresh() {
  const application::PlaybackIs& heard = application::PlayerRemote::shared().playback();
  song_ = heard.song;
  is_playing_ = heard.is_playing;
  elapsed_ = heard.elapsed;
  duration_ = heard.duration;
  volume_ = heard.volume;
  heard_at_ = RunLoop::main().now();
}

MPMediaItem PlayerState::item() const {
  return song_with_id(song_);
}

double PlayerState::elapsed() const {
  const double now = elapsed_ + (is_playing_ ? RunLoop::main().now() - heard_at_ : 0);
  return duration_ > 0 ? std::clamp(now, 0.0, duration_) : std::max(now, 0.0);
}

}  // namespace host::music
