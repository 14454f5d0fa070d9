#pragma once

#include <filesystem>
#include <string>
#include <variant>
#include <vector>

namespace host::launcher {

/// What the command line asks for; paths are absolute.
struct Options {
  std::string device;
  std::filesystem::path root;  // empty for a new one that is thrown away
  std::vector<std::filesystem::path> music;
  std::vector<std::string> without;
  std::filesystem::path screenshots;
  std::filesystem::path script;  // empty without one
  bool is_set_up = false;        // a new device begins with its first files
  bool headless = false;
  bool blind = false;
  bool console = false;

  /// With nobody watching, the clock stands still until the console moves it.
  bool has_stepped_clock() const { return headless && (console || !script.empty()); }
};

/// The line to print and the status to end with, in place of a phone.
struct Ending {
  int status = 0;
  std::string text;
};

inline constexpr int kBadUsage = 2;

/// The command line is not trusted: everything in it is checked except whether the root can be
/// written, which `prepare_device_root` finds out.
std::variant<Options, Ending> read_options(int count, const char* const* arguments);

/// `$XDG_DATA_HOME/sonavue/device`, or the same below `~/.local/share`.
std::filesystem::path default_device_root();

/// The arguments that make the home screen's process the phone of these options.
std::vector<std::string> home_screen_arguments(const Options& options);
/// The same for the processes of applications.
std::vector<std::string> application_arguments(const Options& options);

}  // namespace host::launcher
