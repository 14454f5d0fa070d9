#pragma once

#include <optional>
#include <string>
#include <vector>

namespace host::launcher {

/// A command line of `killall`. Every signal but 0 ends the process, and a device has one user, so
/// neither is kept.
struct KillallCall {
  std::vector<std::string> names;
  bool only_looks = false;  // signal 0
  bool is_quiet = false;
};

/// Returns nothing, with the reason in `problem`, when no process is named, a signal is unknown, or
/// names would be patterns.
std::optional<KillallCall> read_killall_call(const std::vector<std::string>& arguments,
                                             std::string& problem);

}  // namespace host::launcher
