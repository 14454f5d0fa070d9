#pragma once

#include <algorithm>

namespace host {

/// True for what breaks a line, moves the cursor or reverses the text: control characters, marks of
/// the writing direction, separators of lines and paragraphs, and writing directions that are
/// embedded or isolated.
constexpr bool is_unprintable(char32_t code) {
  struct Range {
    char32_t first;
    char32_t last;
  };
  constexpr Range kRanges[] = {
      {0x00, 0x1f}, {0x7f, 0x9f}, {0x200e, 0x200f}, {0x2028, 0x202e}, {0x2066, 0x2069}};
  return std::ranges::any_of(
      kRanges, [code](Range range) { return code >= range.first && code <= range.last; });
}

}  // namespace host
