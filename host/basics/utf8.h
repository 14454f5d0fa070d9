#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace host::utf8 {

struct Letter {
  char32_t code = 0;
  std::size_t bytes = 0;  // 0 when it is not a letter.
};

inline bool is_continuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xc0) == 0x80;
}

inline Letter decoded(std::string_view text, std::size_t bytes, char32_t first_bits,
                      char32_t smallest) {
  if (text.size() < bytes) return {};
  char32_t code = first_bits;
  for (std::size_t i = 1; i < bytes; ++i) {
    if (!is_continuation(text[i])) return {};
    code = code << 6 | (static_cast<unsigned char>(text[i]) & 0x3f);
  }
  const bool is_surrogate = code >= 0xd800 && code <= 0xdfff;
  return code < smallest || code > 0x10ffff || is_surrogate ? Letter{} : Letter{code, bytes};
}

/// Returns the first letter of a text that is not empty. A zero byte is not one.
inline Letter first_letter(std::string_view text) {
  const auto first = static_cast<unsigned char>(text.front());
  if (first < 0x80) return {first, first != 0 ? std::size_t{1} : 0};
  if ((first & 0xe0) == 0xc0) return decoded(text, 2, first & 0x1f, 0x80);
  if ((first & 0xf0) == 0xe0) return decoded(text, 3, first & 0x0f, 0x800);
  if ((first & 0xf8) == 0xf0) return decoded(text, 4, first & 0x07, 0x10000);
  return {};
}

inline bool is_valid(std::string_view text) {
  while (!text.empty()) {
    const std::size_t bytes = first_letter(text).bytes;
    if (bytes == 0) return false;
    text.remove_prefix(bytes);
  }
  return true;
}

/// Appends the character with this number.
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

}  // namespace host::utf8
