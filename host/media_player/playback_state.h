#pragma once

#include "host/media/queue_player.h"
#include "platform/MediaPlayer/MPMusicPlayerController.h"

namespace host::media_player {

/// The player's state and choices as constants of the platform.
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

constexpr MPMusicRepeatMode platform_repeat(media::Repeat repeat) {
  switch (repeat) {
    case media::Repeat::one:
      return MPMusicRepeatModeOne;
    case media::Repeat::all:
      return MPMusicRepeatModeAll;
    case media::Repeat::none:
      break;
  }
  return MPMusicRepeatModeNone;
}

}  // namespace host::media_player
