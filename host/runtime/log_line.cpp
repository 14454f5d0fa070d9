#include "host/runtime/log_line.h"

#include <fmt/format.h>

#include <algorithm>

#include "host/basics/printable.h"
#include "host/basics/utf8.h"

namespace host {
namespace {

std::string escaped_byte(char32_t byte) {
  return fmt::format("\\x{:02x}", static_cast<unsigned>(byte));
}

std::string escaped(char32_t code) {
  constexpr char32_t kLastByte = 0x7f;
  if (code == '\n') return "\\n";
  if (code == '\r') return "\\r";
  if (code == '\t') return "\\t";
  if (code <= kLastByte) return escaped_byte(code);
  return fmt::format("\\u{:04x}", static_cast<unsigned>(code));
}

}  // namespace

std::string on_one_line(std::string_view message) {
  std::string made;
  made.reserve(message.size());
  while (!message.empty()) {
    const utf8::Letter letter = utf8::first_letter(message);
    if (letter.bytes == 0) {
      made += escaped_byte(static_cast<unsigned char>(message.front()));
    } else if (is_unprintable(letter.code)) {
      made += escaped(letter.code);
    } else {
      made += message.substr(0, letter.bytes);
    }
    message.remove_prefix(std::max<std::size_t>(letter.bytes, 1));
  }
  return made;
}

}  // namespace host
