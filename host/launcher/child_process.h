#pragma once

#include <sys/types.h>

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace host::launcher {

struct ChildCommand {
  std::filesystem::path program;
  std::vector<std::string> arguments;                            // without the program's own name
  std::vector<std::pair<std::string, std::string>> environment;  // besides this process's own
};

/// The exit status of a child whose program could not be run.
inline constexpr int kCannotRun = 127;

/// Starts a program that ends when this process does and is named after its file. It inherits
/// `kept`, a close-on-exec descriptor; -1 for none. Returns nothing when the fork failed; the child
/// of a missing program exits at once with `kCannotRun`.
std::optional<pid_t> start_child(const ChildCommand& command, int kept);

}  // namespace host::launcher
