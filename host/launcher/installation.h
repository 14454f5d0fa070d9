#pragma once

#include <filesystem>
#include <string>

#include "host/launcher/device_root.h"

namespace host::launcher {

/// Where the pieces of this build lie, seen from the running program.
struct Installation {
  std::filesystem::path home_screen;  // the program SpringBoard
  std::filesystem::path tools;        // programs that stand first on the device's path
  std::filesystem::path covers;       // pictures for the demo music
  StagingSource staging;
  std::filesystem::path first_files;  // of a new device that is set up already
};

Installation find_installation();

}  // namespace host::launcher
