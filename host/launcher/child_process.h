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

/// Starts a program that ends when this process does, whose name is that of its file. It inherits
/// `kept`, a descriptor that is otherwise closed on exec; -1 for none. Nothing when it could not
/// even be forked; a program that is not there ends at once with status 127.
std::optional<pid_t> start_child(const ChildCommand& command, int kept);

}  // namespace host::launcher
