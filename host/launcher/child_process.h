#pragma once

#include <sys/types.h>

#include <filesystem>
#include <optional>
#include <span>
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

/// Starts a program that ends when this process does and is named after its file. It inherits the
/// close-on-exec descriptors in `kept`; -1 stands for none. Returns nothing when the fork failed;
/// the child of a missing program exits at once with `kCannotRun`.
std::optional<pid_t> start_child(const ChildCommand& command, std::span<const int> kept);

/// Returns whether a debugger is attached to the process.
bool is_traced(pid_t process);

}  // namespace host::launcher
