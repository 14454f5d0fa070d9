#include "host/social/delivery/percent_encoding.h"

namespace host::social {
namespace {

bool is_unreserved(unsigned char byte) {
  const bool is_letter = (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
  const bool is_digit = byte >= '0' && byte <= '9';
  return is_letter || is_digit || byte == '-' || byte == '.' || byte == '_' || byte == '~';
}

}  // namespace

std::string percent_encoded(std::string_view bytes) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string encoded;
  for (const char character : bytes) {
    const auto byte = static_cast<unsigned char>(character);
    if (is_unreserved(byte)) {
      encoded += character;
    } else {
      encoded += {'%', kDigits[byte >> 4], kDigits[byte & 15]};
    }
  }
  return encoded;
}

std::string with_mail_line_ends(std::string_view text) {
  std::string lines;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '\r' && text[at] != '\n') {
      lines += text[at];
      continue;
    }
    if (text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n') ++at;
    lines += "\r\n";
  }
  return lines;
}

}  // namespace host::social
