#pragma once

#include "objc/ref.h"
#include "platform/MediaPlayerUI/MPUNowPlayingController.h"

namespace host::springboard {

/// The playing song, as the surfaces show it. Texts and picture are nil when nothing is loaded.
struct NowPlaying {
  bool has_track = false;
  bool is_playing = false;
  objc::Ref<NSString> title;
  objc::Ref<NSString> line;  ///< "Artist — Album".
  objc::Ref<UIImage> artwork;
  double elapsed = 0;
  double duration = 0;
};

/// Asks the system's media controllers. The elapsed time that they report is constant between two
/// reports, so the time since the last one is added here.
class NowPlayingReader {
 public:
  NowPlayingReader();

  NowPlaying read(double now);

 private:
  double elapsed_at(double now, bool is_playing);

  objc::Ref<MPUNowPlayingController> controller_;
  double reported_ = 0;
  double shown_ = 0;
  double last_ = 0;
};

}  // namespace host::springboard
