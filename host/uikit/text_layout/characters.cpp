#include "host/uikit/text_layout/characters.h"

namespace host::uikit {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool is_high(unichar unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
bool is_low(unichar unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

constexpr unichar kJoiner = 0x200D;
constexpr std::size_t kLongestCharacter = 64;

// Returns whether the unit continues the character before it.
bool continues_character(unichar unit, unichar before) {
  const bool combining = (unit >= 0x0300 && unit < 0x0370) || (unit >= 0x1AB0 && unit < 0x1B00) ||
                         (unit >= 0x20D0 && unit < 0x2100);
  const bool selects_variation = unit >= 0xFE00 && unit <= 0xFE0F;
  const bool second_half = is_low(unit) && is_high(before);
  return second_half || combining || selects_variation || unit == kJoiner || before == kJoiner;
}

bool begins_character(NSString text, std::size_t index) {
  if (index == 0 || index >= text.length()) return true;
  return !continues_character(text.characterAtIndex(index), text.characterAtIndex(index - 1));
}

void append(std::string& bytes, char32_t code) {
  const auto put = [&](char32_t value) { bytes.push_back(static_cast<char>(value)); };
  if (code < 0x80) return put(code);
  if (code < 0x800) {
    put(0xC0 | (code >> 6));
  } else if (code < 0x10000) {
    put(0xE0 | (code >> 12));
    put(0x80 | ((code >> 6) & 0x3F));
  } else {
    put(0xF0 | (code >> 18));
    put(0x80 | ((code >> 12) & 0x3F));
    put(0x80 | ((code >> 6) & 0x3F));
  }
  put(0x80 | (code & 0x3F));
}

}  // namespace

void append_utf8(std::string& bytes, std::span<const unichar> units) {
  for (std::size_t i = 0; i < units.size(); ++i) {
    char32_t code = units[i];
    if (is_high(units[i]) && i + 1 < units.size() && is_low(units[i + 1])) {
      code = 0x10000 + ((code - 0xD800) << 10) + (units[i + 1] - 0xDC00);
      ++i;
    } else if (is_high(units[i]) || is_low(units[i]) || code == 0) {
      code = kReplacement;
    }
    append(bytes, code);
  }
}

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
