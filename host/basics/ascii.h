#pragma once

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <string>
#include <string_view>

namespace host {

/// Bytes of any kind as ASCII: `%` and what is not ASCII become `%` and two hexadecimal digits.
/// Foundation reads the arguments of a process before its `main` and ends it if one is not UTF-8.
inline std::string ascii_of(std::string_view bytes) {
  std::string made;
  for (const char byte : bytes) {
    const auto number = static_cast<unsigned char>(byte);
    if (byte != '%' && number < 0x80) {
      made += byte;
      continue;
    }
    char escape[4];
    std::snprintf(escape, sizeof escape, "%%%02x", number);
    made += escape;
  }
  return made;
}

/// The reverse; an escape that is incomplete stays as it is.
inline std::string bytes_of_ascii(std::string_view ascii) {
  constexpr std::size_t kEscape = 3;
  std::string made;
  while (!ascii.empty()) {
    unsigned byte = 0;
    const char* digits_end = ascii.data() + std::min(ascii.size(), kEscape);
    const bool is_escape =
        ascii.front() == '%' && ascii.size() >= kEscape &&
        std::from_chars(ascii.data() + 1, digits_end, byte, 16).ptr == digits_end;
    made += is_escape ? static_cast<char>(byte) : ascii.front();
    ascii.remove_prefix(is_escape ? kEscape : 1);
  }
  return made;
}

}  // namespace host
