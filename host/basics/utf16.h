#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace host::utf16 {

inline bool is_high(std::uint16_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
inline bool is_low(std::uint16_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

inline void append(std::string& bytes, char32_t code) {
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

/// Appends the units as valid UTF-8. Unpaired surrogates and zero units become U+FFFD: neither may
/// reach what takes UTF-8 or a C string.
inline void append_utf8(std::string& bytes, std::span<const std::uint16_t> units) {
  constexpr char32_t kReplacement = 0xFFFD;
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

}  // namespace host::utf16
