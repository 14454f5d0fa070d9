#pragma once

#include <string>

namespace host::console {

/// The console's answer to one line.
struct Answer {
  enum class Kind { Done, Value, Error, Quit };
  Kind kind = Kind::Done;
  std::string text;  // the value or the error

  /// The line of the protocol: `ok`, the value, or `error: …`.
  std::string line() const;
};

}  // namespace host::console
