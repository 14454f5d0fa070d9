#pragma once

#include <cstddef>
#include <filesystem>

#include "host/basics/descriptor.h"

namespace host::launcher {

/// A file that several processes append to. It is kept from growing without end: what it holds
/// becomes the previous log, `FILE.1`, and it starts again.
class LogFile {
 public:
  static constexpr std::size_t kLargest = 1024 * 1024;

  /// Opens or makes the file, and its folder. Returns false when that fails.
  bool open(const std::filesystem::path& path);
  void keep_bounded() const;
  int descriptor() const { return file_.get(); }

 private:
  std::filesystem::path path_;
  Descriptor file_;
};

/// `$XDG_STATE_HOME/sonavue/sonavue.log`, or the same below `~/.local/state`.
std::filesystem::path default_log_file();

/// Opens the standard streams that this process was started without, so that no other file takes
/// their numbers.
void open_standard_streams();

/// Makes the default log file the standard error of this process and of those that it starts,
/// unless that is a terminal, a pipe or a file, where the user sees it.
void log_to_file_unless_seen();
/// Call this now and then.
void keep_log_bounded();

}  // namespace host::launcher
