#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "host/screen/input.h"

namespace host::screen {

/// Small numbers for the fingers on a touch screen, which have long and arbitrary names there. A
/// finger keeps its number until it is lifted; 0 is left to the mouse.
class Fingers {
 public:
  /// Nothing for a finger that moves or lifts without having been put down.
  std::optional<int> number_of(std::int64_t name, TouchPhase phase);

 private:
  std::vector<std::optional<std::int64_t>> names_;
};

}  // namespace host::screen
