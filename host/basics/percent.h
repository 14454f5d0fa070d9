#pragma once

#include <string>
#include <string_view>

namespace host {

/// Encodes every byte as `%XX`, except for letters, digits, `-._~` and the signs in `also_kept`.
inline std::string percent_encoded(std::string_view bytes, std::string_view also_kept = {}) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  const auto is_kept = [also_kept](char sign) {
    const bool is_letter = (sign >= 'A' && sign <= 'Z') || (sign >= 'a' && sign <= 'z');
    const bool is_digit = sign >= '0' && sign <= '9';
    return is_letter || is_digit || std::string_view("-._~").find(sign) != std::string_view::npos ||
           also_kept.find(sign) != std::string_view::npos;
  };
  std::string encoded;
  for (const char sign : bytes) {
    const auto byte = static_cast<unsigned char>(sign);
    if (is_kept(sign)) {
      encoded += sign;
    } else {
      encoded += {'%', kDigits[byte >> 4], kDigits[byte & 15]};
    }
  }
  return encoded;
}

/// The address of a file by its absolute path.
inline std::string file_address(std::string_view path) {
  return "file://" + percent_encoded(path, "/");
}

}  // namespace host
