#pragma once

#include <optional>
#include <vector>

#include "platform/CoreGraphics/CGGeometry.h"

namespace host::uikit {

/// Where a key moves the focus: along the order of reading, or to what lies in a direction.
enum class FocusStep { Next, Previous, Up, Down, Left, Right };

constexpr bool is_reading(FocusStep step) {
  return step == FocusStep::Next || step == FocusStep::Previous;
}

/// Returns the indices of the places in the order of reading: line by line, and from left to right
/// within a line. Places are in one line when the middle of one is at the height of the other's.
std::vector<std::size_t> reading_order(const std::vector<CGRect>& places);

/// Returns the index of the place to which a step leads; nothing when no place lies there. A place
/// equal to `from` is not considered.
std::optional<std::size_t> place_after(CGRect from, FocusStep step,
                                       const std::vector<CGRect>& places);

/// Returns the place where `Next` begins, or where `Previous` does; nothing when there are none.
std::optional<std::size_t> outermost_place(FocusStep step, const std::vector<CGRect>& places);

}  // namespace host::uikit
