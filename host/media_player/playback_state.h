#pragma once

#include "host/media/queue_player.h"
#include "platform/MediaPlayer/MPMusicPlayerController.h"

namespace host::media_player {

/// The player's state as the system's classes name it.
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
