#pragma once

#include "objc/class_builder.h"
#include "platform/SpringBoard/SBMediaController.h"

namespace host::media_player {

/// The home screen's controls for whatever plays.
class MediaController : public objc::Implementation<MediaController, SBMediaController> {
 public:
  explicit MediaController(SBMediaController owner) : Implementation(owner) {}

  BOOL is_playing();
  BOOL is_paused();
  BOOL has_track();
  BOOL toggle_play_pause();
  BOOL change_track(int direction);
  float volume();
  void set_volume(float volume);
  void change_volume_by(float step);
  void system_volume_changed(objc::Object notification);

  /// The state that the playing engine itself reports, for the console to compare with what is
  /// shown. The path is nil when nothing is loaded; the position is in seconds.
  void music_choices_changed();
  NSString player_path();
  BOOL player_is_paused();
  double player_position();
};

}  // namespace host::media_player
