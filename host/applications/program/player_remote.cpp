#include "host/applications/program/player_remote.h"

namespace host::application {

PlayerRemote& PlayerRemote::shared() {
  static auto* const remote = new PlayerRemote;
  return *remote;
}

void PlayerRemote::take(const PlaybackIs& playback) {
  playback_ = playback;
  if (on_change) on_change();
}

void PlayerRemote::steer(const SteerPlayer& command) const {
  if (send) send(command);
}

}  // namespace host::application
