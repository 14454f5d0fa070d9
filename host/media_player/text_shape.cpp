#include "host/media_player/text_shape.h"

#include <algorithm>

#include "host/basics/utf8.h"
#include "host/foundation/canonical_search.h"

namespace host::media_player {
namespace {

using utf8::first_letter;
using utf8::is_continuation;
using utf8::Letter;

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
