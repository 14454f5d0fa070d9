#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace host::media_player {

enum class TextKind : std::uint8_t {
  ascii,
  // Letters that `foundation::is_plain_letter` knows: two such texts are equal, and one is found in
  // the other, exactly when their bytes say so.
  plain,
  other,
  broken,  // No UTF-8, or it holds a zero.
};

struct TextShape {
  TextKind kind = TextKind::ascii;
  std::size_t length = 0;  // In UTF-16 units.
};

TextShape shape_of(std::string_view utf8);

/// Writes the `shape_of(utf8).length` UTF-16 units of a text that is not broken.
void widen(std::string_view utf8, std::uint16_t* units);

/// The UTF-16 units of the first `bytes` bytes of a text of kind `ascii` or `plain`.
std::size_t units_before(std::string_view utf8, std::size_t bytes);

}  // namespace host::media_player
