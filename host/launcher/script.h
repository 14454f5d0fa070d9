#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host::launcher {

/// The lines of a script, and its name for messages.
struct Script {
  std::string name;
  std::vector<std::string> lines;
};

/// One line of a script that is played.
struct ScriptLine {
  std::string text;
  std::string script;  // its name
  std::size_t number = 0;
  int depth = 0;  // of scripts that play scripts

  /// `SCRIPT:NUMBER`
  std::string place() const { return script + ":" + std::to_string(number); }
};

/// Sees a script being played.
class ScriptWitness {
 public:
  virtual ~ScriptWitness() = default;
  virtual void printed(std::string_view text) = 0;
  /// `failure` is empty unless the line failed.
  virtual void answered(const ScriptLine& line, std::string_view failure) = 0;
  /// The line is not played, since one before it failed.
  virtual void left_out(const ScriptLine& line) = 0;
};

/// Whether a script may be a pipe, which is read until its writer closes it.
enum class Pipes { Allowed, Refused };

/// Reads a file of at most 16 MB. Returns nothing, with the reason in `problem`, when that fails.
std::optional<Script> read_script(const std::string& file, Pipes pipes, std::string& problem);

}  // namespace host::launcher
