#include "host/uikit/text_layout/characters.h"

#include "host/basics/utf16.h"

namespace host::uikit {
namespace {

constexpr unichar kJoiner = 0x200D;
constexpr std::size_t kLongestCharacter = 64;

// Returns whether the unit continues the character before it.
bool continues_character(unichar unit, unichar before) {
  const bool combining = (unit >= 0x0300 && unit < 0x0370) || (unit >= 0x1AB0 && unit < 0x1B00) ||
                         (unit >= 0x20D0 && unit < 0x2100);
  const bool selects_variation = unit >= 0xFE00 && unit <= 0xFE0F;
  const bool second_half = utf16::is_low(unit) && utf16::is_high(before);
  return second_half || combining || selects_variation || unit == kJoiner || before == kJoiner;
}

bool begins_character(NSString text, std::size_t index) {
  if (index == 0 || index >= text.length()) return true;
  return !continues_character(text.characterAtIndex(index), text.characterAtIndex(index - 1));
}

}  // namespace

std::size_t character_start(NSString text, std::size_t index) {
  for (std::size_t back = 0; back < kLongestCharacter && back <= index; ++back) {
    if (begins_character(text, index - back)) return index - back;
  }
  return index;
}

std::size_t character_end(NSString text, std::size_t index) {
  const std::size_t length = text.length();
  std::size_t end = index < length ? index + 1 : length;
  while (end - index < kLongestCharacter && !begins_character(text, end))
    ++end;
  return end;
}

NSUInteger utf16_units(std::string_view text, int code_points) {
  NSUInteger units = 0;
  for (const char byte : text) {
    const auto value = static_cast<unsigned char>(byte);
    const bool begins = (value & 0xC0) != 0x80;
    if (begins && code_points-- <= 0) break;
    if (begins) units += value >= 0xF0 ? 2 : 1;
  }
  return units;
}

}  // namespace host::uikit
