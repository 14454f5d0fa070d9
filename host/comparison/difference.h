#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/screen/screen.h"

namespace host::comparison {

/// Where two pictures of one size differ. Only colours count, not transparency: there is nothing
/// behind a screen.
struct Difference {
  std::size_t pixels = 0;
  /// The largest difference of one colour of one pixel, 0 to 255.
  int largest = 0;
  /// The first picture, pale, with the pixels that differ in red.
  std::vector<std::uint32_t> marked;
};

Difference difference_of(const screen::Picture& one, const screen::Picture& other);

/// Compares what is shown with the picture in a PNG file. Returns nothing when they are equal, and
/// otherwise how they differ; `marked` is the file for the marked difference.
std::optional<std::string> reason_not_equal(const screen::Picture& shown, const std::string& stored,
                                            const std::string& marked);

}  // namespace host::comparison
