#pragma once

#include "platform/MediaPlayer/MPMediaItem.h"

namespace host::music {

/// The phone's playback state, extrapolated from the last report to now.
class PlayerState {
 public:
  /// Takes over the phone's latest report.
  void refresh();

  bool has_song() const { return song_ != 0; }
  std::uint64_t song() const { return song_; }
  MPMediaItem item() const;
  bool is_playing() const { return is_playing_; }
  double elapsed() const;
  double duration() const { return duration_; }
  double volume() const { return volume_; }

 private:
  std::uint64_t song_ = 0;
  bool is_playing_ = false;
  double elapsed_ = 0;
  double heard_at_ = 0;
  double duration_ = 0;
  double volume_ = 0;
};

}  // namespace host::music
