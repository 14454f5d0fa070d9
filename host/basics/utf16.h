#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "host/basics/utf8.h"

namespace host::utf16 {

inline bool is_high(std::uint16_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
inline bool is_low(std::uint16_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

/// The character that a surrogate pair stands for.
inline char32_t joined(char32_t high, char32_t low) {
  return 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00);
}

/// Appends the units as valid UTF-8. Unpaired surrogates and zero units become U+FFFD: neither may
/// reach what takes UTF-8 or a C string.
inline void append_utf8(std::string& bytes, std::span<const std::uint16_t> units) {
  constexpr char32_t kReplacement = 0xFFFD;
  for (std::size_t i = 0; i < units.size(); ++i) {
    char32_t code = units[i];
    if (is_high(units[i]) && i + 1 < units.size() && is_low(units[i + 1])) {
      code = joined(units[i], units[i + 1]);
      ++i;
    } else if (is_high(units[i]) || is_low(units[i]) || code == 0) {
      code = kReplacement;
    }
    utf8::append(bytes, code);
  }
}

}  // namespace host::utf16
