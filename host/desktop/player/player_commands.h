#pragma once

#include <cstdint>
#include <string>

#include "host/desktop/now_playing/now_playing.h"

namespace host::desktop {

/// What other programs can ask of the player. Like the buttons of the phone, these send the
/// platform's messages, so that replaced methods are called. What is impossible at the moment
/// (`PlayerState`) does nothing.
class PlayerCommands {
 public:
  explicit PlayerCommands(NowPlaying& now_playing) : now_playing_(now_playing) {}

  void play();
  void pause();
  void toggle();
  void stop();
  void next();
  void previous();
  /// From the present place; beyond the end of the song the next one follows.
  void move_by(std::int64_t microseconds);
  /// Ignored outside of the song.
  void move_to(std::int64_t microseconds);
  void set_volume(double volume);
  /// There is one rate, and setting it changes nothing. Rate 0 means a pause.
  void set_rate(double rate);
  void set_repeat(media::Repeat repeat);
  void set_shuffles(bool shuffles);
  /// Plays a file or folder by its address: a song of the library with the others after it,
  /// anything else as if it were dropped on the window. Returns why it cannot be played, or
  /// nothing.
  std::string open(const std::string& address);

 private:
  const PlayerState& state() const { return now_playing_.state(); }

  NowPlaying& now_playing_;
};

}  // namespace host::desktop
