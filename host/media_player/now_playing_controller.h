#pragma once

#include "objc/class_builder.h"
#include "platform/MediaPlayerUI/MPUNowPlayingController.h"

namespace host::media_player {

/// What is playing, as the player last reported it.
class NowPlayingController
    : public objc::Implementation<NowPlayingController, MPUNowPlayingController> {
 public:
  explicit NowPlayingController(MPUNowPlayingController owner) : Implementation(owner) {}

  UIImage current_now_playing_artwork();
  /// Returns nil when nothing is loaded; texts that the song lacks are missing from the dictionary.
  NSDictionary current_now_playing_info();
  double current_elapsed();
  double current_duration();
};

}  // namespace host::media_player
