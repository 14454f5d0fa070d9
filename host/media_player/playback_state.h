#pragma once

#include "host/media/queue_player.h"
#include "platform/MediaPlayer/MPMusicPlayerController.h"

namespace host::media_player {

/// Returns the player's state as a constant of the platform.
constexpr MPMusicPlaybackState platform_state(media::PlaybackState state) {
  switch (state) {
    case media::PlaybackState::playing:
      return MPMusicPlaybackStatePlaying;
    case media::PlaybackState::paused:
      return MPMusicPlaybackStatePaused;
    case media::PlaybackState::stopped:
      break;
  }
  return MPMusicPlaybackStateStopped;
}

}  // namespace host::media_player
