#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace host::launcher {

/// The options that the launcher passes to the home screen's process, which trusts them.
struct ProcessOptions {
  std::string device;
  std::string root;
  std::vector<std::filesystem::path> music;
  std::filesystem::path screenshots;
  std::vector<std::filesystem::path> extensions;  // that are not installed
  bool headless = false;
  bool blind = false;
  bool stepped = false;
  bool desktop = false;    // takes part in the desktop's session
  bool safe_mode = false;  // no extensions
  int console_descriptor = -1;
  int lifeline_descriptor = -1;
  // For a phone in a browser: the listening socket and the memory of who may use it.
  int browser_descriptor = -1;
  int access_descriptor = -1;
};

/// Folders come as ASCII (`host/basics/ascii.h`). Returns nothing when the arguments are
/// not the launcher's.
std::optional<ProcessOptions> read_process_options(int count, const char* const* arguments);

}  // namespace host::launcher
