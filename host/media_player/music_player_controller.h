#pragma once

#include "objc/class_builder.h"
#include "platform/MediaPlayer/MPMusicPlayerController.h"

namespace host::media_player {

/// The system's music player, an interface to the process's media service.
class MusicPlayerController
    : public objc::Implementation<MusicPlayerController, MPMusicPlayerController> {
 public:
  explicit MusicPlayerController(MPMusicPlayerController owner) : Implementation(owner) {}

  void set_queue_with_query(MPMediaQuery query);
  MPMediaItem now_playing_item();
  /// Ignored when the item is not in the queue.
  void set_now_playing_item(MPMediaItem item);
  MPMusicPlaybackState playback_state();
  void prepare_to_play();
  void play();
  void pause();
  void stop();
  double current_playback_time();
  void set_current_playback_time(double seconds);
  MPMusicRepeatMode repeat_mode();
  void set_repeat_mode(MPMusicRepeatMode mode);
  MPMusicShuffleMode shuffle_mode();
  /// Albums are shuffled as songs are.
  void set_shuffle_mode(MPMusicShuffleMode mode);
  void playback_state_did_change(NSInteger state);
};

void export_music_player_controller();

}  // namespace host::media_player
