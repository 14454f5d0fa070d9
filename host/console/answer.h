#pragma once

#include <string>

namespace host::console {

/// What the console says to one line.
struct Answer {
  enum class Kind { Done, Value, Error, Quit };
  Kind kind = Kind::Done;
  std::string text;  // of a value or an error

  /// The line of the protocol: `ok`, the value, or `error: …`.
  std::string line() const;
};

}  // namespace host::console
