#pragma once

#include <optional>
#include <string>

#include "platform/CoreGraphics/CGGeometry.h"

namespace host::screen {

/// Keeps the window's size from one run to the next, in a file of two numbers.
class WindowMemory {
 public:
  /// Without a file, nothing is kept.
  explicit WindowMemory(std::string file) : file_(std::move(file)) {}

  /// Nothing without a file; one that holds anything else is ignored, with a line in the log.
  std::optional<CGSize> recall();
  /// Writes the size if it is another one than the file has. A size that cannot be kept is not.
  void keep(CGSize size);

 private:
  std::string file_;
  std::optional<CGSize> kept_;
};

}  // namespace host::screen
