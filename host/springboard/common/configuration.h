#pragma once

#include <string>

#include "host/springboard/model/icon_state.h"
#include "host/springboard/model/wall_clock.h"

namespace host::springboard {

class ProcessKeeper;

/// What the home screen finds on its device. Set before the application is launched.
struct Configuration {
  std::string applications_folder = "/Applications";
  std::string icon_state_path = kIconStatePath;
  /// Where the home screen's own pictures are: the wallpaper and the status bar's glyphs.
  std::string pictures_folder = "/System/Library/CoreServices/SpringBoard.app";
  std::string wallpaper = "wallpaper-1";
  /// Outlives the home screen.
  const WallClock* wall_clock = &fixed_wall_clock;
  /// Owns the applications' processes, and outlives the home screen; with none, no application has
  /// a program.
  ProcessKeeper* process_keeper = nullptr;
  /// Does somebody move the clock? Then applications are kept in step with it.
  bool has_stepped_clock = false;
};

void configure(Configuration configuration);
const Configuration& configuration();

}  // namespace host::springboard
