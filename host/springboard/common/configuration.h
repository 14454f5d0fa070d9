#pragma once

#include <cstdint>
#include <string>

#include "host/springboard/model/icon_state.h"
#include "host/springboard/model/wall_clock.h"

namespace host::springboard {

class ProcessKeeper;

/// The paths and services that the home screen uses. Set before the application is launched.
struct Configuration {
  std::string applications_folder = "/Applications";
  std::string icon_state_path = kIconStatePath;
  /// The folder with the home screen's own pictures: the wallpaper and the status bar's glyphs.
  std::string pictures_folder = "/System/Library/CoreServices/SpringBoard.app";
  std::string wallpaper = "wallpaper-1";
  /// Must outlive the home screen.
  const WallClock* wall_clock = &fixed_wall_clock;
  /// Owns the applications' processes and must outlive the home screen. When null, no application
  /// has a program.
  ProcessKeeper* process_keeper = nullptr;
  /// True when the clock is advanced by hand; applications are then kept in step with it.
  bool has_stepped_clock = false;
  /// A number that changes with the library of songs; applications read theirs again then.
  std::uint64_t (*library_number)() = nullptr;
};

void configure(Configuration configuration);
const Configuration& configuration();

}  // namespace host::springboard
