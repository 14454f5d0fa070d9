#pragma once

#include <span>
#include <string>

namespace host::console {

/// The console's answer to one line.
struct Answer {
  enum class Kind { Done, Value, List, Error, Quit };
  Kind kind = Kind::Done;
  std::string text;  // the value, the error, or the lines of a list as the protocol has them

  /// The form of the protocol: `ok`, the value, `error: …`, or indented lines and then `ok`.
  std::string line() const;
};

/// An answer with several lines.
Answer list_of(std::span<const std::string> lines);

}  // namespace host::console
