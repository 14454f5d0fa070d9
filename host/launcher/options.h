#pragma once

#include <filesystem>
#include <string>
#include <variant>
#include <vector>

namespace host::launcher {

/// The options of the command line; paths are absolute.
struct Options {
  std::string device;
  std::filesystem::path root;  // empty for a new one that is deleted afterwards
  std::vector<std::filesystem::path> music;
  std::vector<std::string> files;     // to play
  std::vector<std::string> refusals;  // a line for each file that cannot be played
  std::vector<std::string> without;
  std::vector<std::filesystem::path> extensions;  // libraries to try without installing them
  std::filesystem::path screenshots;
  std::vector<std::filesystem::path> scripts;  // each is played on a phone started for it
  std::filesystem::path report;                // of the scripts; empty without one
  std::filesystem::path headers;  // folder to write them to, instead of starting a phone
  bool is_set_up = false;         // a new device gets its first files
  bool headless = false;
  bool browser = false;  // no window either, but a page
  bool blind = false;
  bool console = false;
  bool desktop = false;

  /// Without a window, the clock moves only when the console steps it.
  bool has_stepped_clock() const { return headless && (console || !scripts.empty()); }
  bool has_window() const { return !headless && !browser; }
  /// A phone that its user does not see leaves the desktop alone, unless it is told otherwise.
  bool takes_part_in_desktop() const { return desktop || !headless; }
};

/// The text to print and the exit status, when no phone is started.
struct Ending {
  int status = 0;
  std::string text;
};

inline constexpr int kBadUsage = 2;
/// Another process has the device.
inline constexpr int kInUse = 4;

/// Checks everything on the command line, except whether the root can be written, which
/// `prepare_device_root` does.
std::variant<Options, Ending> read_options(int count, const char* const* arguments);

/// `$XDG_DATA_HOME/sonavue/device`, or the same below `~/.local/share`.
std::filesystem::path default_device_root();

/// The arguments for starting the home screen with these options.
std::vector<std::string> home_screen_arguments(const Options& options);
/// The same for the processes of applications.
std::vector<std::string> application_arguments(const Options& options);

}  // namespace host::launcher
