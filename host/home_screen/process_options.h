#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace host::launcher {

/// What the launcher tells the home screen's process, which trusts it.
struct ProcessOptions {
  std::string device;
  std::string root;
  std::vector<std::filesystem::path> music;
  std::filesystem::path screenshots;
  bool headless = false;
  bool blind = false;
  bool stepped = false;
  int console_descriptor = -1;
};

/// Nothing when the arguments are not the launcher's.
std::optional<ProcessOptions> read_process_options(int count, const char* const* arguments);

}  // namespace host::launcher
