#pragma once

#include <functional>

#include "host/application/wire/messages.h"

namespace host::application {

/// The phone's player, as an application sees and controls it: the home screen's process plays.
class PlayerRemote {
 public:
  /// The instance of this process.
  static PlayerRemote& shared();

  const PlaybackIs& playback() const { return playback_; }
  void play_song(std::uint64_t song) { steer({PlayerCommand::PlaySong, song, 0}); }
  void toggle() { steer({PlayerCommand::Toggle, 0, 0}); }
  void next() { steer({PlayerCommand::Next, 0, 0}); }
  void previous() { steer({PlayerCommand::Previous, 0, 0}); }
  void seek(double seconds) { steer({PlayerCommand::Seek, 0, seconds}); }
  void set_volume(double volume) { steer({PlayerCommand::SetVolume, 0, volume}); }
  void read_choices() { steer({PlayerCommand::ReadChoices, 0, 0}); }

  /// Called after every change.
  std::function<void()> on_change;
  /// Sends a command to the home screen; set by the running program.
  std::function<void(const SteerPlayer&)> send;
  void take(const PlaybackIs& playback);

 private:
  void steer(const SteerPlayer& command) const;

  PlaybackIs playback_;
};

}  // namespace host::application
