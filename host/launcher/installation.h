#pragma once

#include <filesystem>
#include <string>

#include "host/launcher/device_root.h"

namespace host::launcher {

/// The locations of this build's parts, derived from the running program's.
struct Installation {
  std::filesystem::path home_screen;  // the program SpringBoard
  std::filesystem::path tools;        // programs that come first on the device's PATH
  std::filesystem::path covers;       // pictures for the demo music
  std::filesystem::path icon;         // of the program, for its window
  StagingSource staging;
  std::filesystem::path first_files;  // for a new device that is already set up
};

Installation find_installation();

}  // namespace host::launcher
