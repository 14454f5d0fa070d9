#pragma once

#include <optional>
#include <string>
#include <vector>

namespace host::launcher {

/// The lines of a script, and its name for messages.
struct Script {
  std::string name;
  std::vector<std::string> lines;
};

/// Whether a script may be a pipe, which is read until its writer closes it.
enum class Pipes { Allowed, Refused };

/// Reads a file of at most 16 MB. Returns nothing, with the reason in `problem`, when that fails.
std::optional<Script> read_script(const std::string& file, Pipes pipes, std::string& problem);

}  // namespace host::launcher
