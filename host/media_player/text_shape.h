#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace host::media_player {

enum class TextKind : std::uint8_t {
  ascii,
  // Letters known to `foundation::is_plain_letter`: two such texts are equal, and one contains the
  // other, exactly when this holds for their bytes.
  plain,
  other,
  broken,  // Invalid UTF-8, or it contains a zero.
};

struct TextShape {
  TextKind kind = TextKind::ascii;
  std::size_t length = 0;  // In UTF-16 units.
};

TextShape shape_of(std::string_view utf8);

/// Writes the `shape_of(utf8).length` UTF-16 units of a text that is not `broken`.
void widen(std::string_view utf8, std::uint16_t* units);

/// Returns the number of UTF-16 units in the first `bytes` bytes of a text of kind `ascii` or
/// `plain`.
std::size_t units_before(std::string_view utf8, std::size_t bytes);

}  // namespace host::media_player
