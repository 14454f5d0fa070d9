#include "host/media_player/text_shape.h"

#include <algorithm>

#include "host/foundation/canonical_search.h"

namespace host::media_player {
namespace {

struct Letter {
  char32_t code = 0;
  std::size_t bytes = 0;  // 0 when it is not a letter.
};

bool is_continuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xc0) == 0x80;
}

Letter decoded(std::string_view text, std::size_t bytes, char32_t first_bits, char32_t smallest) {
  if (text.size() < bytes) return {};
  char32_t code = first_bits;
  for (std::size_t i = 1; i < bytes; ++i) {
    if (!is_continuation(text[i])) return {};
    code = code << 6 | (static_cast<unsigned char>(text[i]) & 0x3f);
  }
  const bool is_surrogate = code >= 0xd800 && code <= 0xdfff;
  return code < smallest || code > 0x10ffff || is_surrogate ? Letter{} : Letter{code, bytes};
}

Letter first_letter(std::string_view text) {
  const auto first = static_cast<unsigned char>(text.front());
  if (first < 0x80) return {first, first != 0 ? std::size_t{1} : 0};
  if ((first & 0xe0) == 0xc0) return decoded(text, 2, first & 0x1f, 0x80);
  if ((first & 0xf0) == 0xe0) return decoded(text, 3, first & 0x0f, 0x800);
  if ((first & 0xf8) == 0xf0) return decoded(text, 4, first & 0x07, 0x10000);
  return {};
}

}  // namespace

TextShape shape_of(std::string_view utf8) {
  TextShape shape;
  while (!utf8.empty()) {
    const Letter letter = first_letter(utf8);
    if (letter.bytes == 0) return {TextKind::broken, 0};
    if (letter.bytes > 1 && shape.kind == TextKind::ascii) shape.kind = TextKind::plain;
    if (!foundation::is_plain_letter(letter.code)) shape.kind = TextKind::other;
    shape.length += letter.bytes == 4 ? 2 : 1;
    utf8.remove_prefix(letter.bytes);
  }
  return shape;
}

void widen(std::string_view utf8, std::uint16_t* units) {
  while (!utf8.empty()) {
    const Letter letter = first_letter(utf8);
    if (letter.bytes == 4) {
      const char32_t rest = letter.code - 0x10000;
      *units++ = static_cast<std::uint16_t>(0xd800 | rest >> 10);
      *units++ = static_cast<std::uint16_t>(0xdc00 | (rest & 0x3ff));
    } else {
      *units++ = static_cast<std::uint16_t>(letter.code);
    }
    utf8.remove_prefix(letter.bytes);
  }
}

std::size_t units_before(std::string_view utf8, std::size_t bytes) {
  return bytes -
         static_cast<std::size_t>(std::ranges::count_if(utf8.substr(0, bytes), is_continuation));
}

}  // namespace host::media_player
