#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "host/screen/input.h"

namespace host::screen {

/// Maps the touch screen's long, arbitrary finger identifiers to small numbers. A finger keeps its
/// number until it is lifted; 0 is reserved for the mouse.
class Fingers {
 public:
  /// Returns nothing for a finger that moves or lifts without having been put down.
  std::optional<int> number_of(std::int64_t name, TouchPhase phase);

 private:
  std::vector<std::optional<std::int64_t>> names_;
};

}  // namespace host::screen
