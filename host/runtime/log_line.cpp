#include "host/runtime/log_line.h"

#include <fmt/format.h>

#include <algorithm>

#include "host/basics/utf8.h"

namespace host {
namespace {

struct Range {
  char32_t first;
  char32_t last;
};

// Control characters, marks of the writing direction, separators of lines and paragraphs, and
// writing directions that are embedded or isolated.
constexpr Range kUnprintable[] = {
    {0x00, 0x1f}, {0x7f, 0x9f}, {0x200e, 0x200f}, {0x2028, 0x202e}, {0x2066, 0x2069}};

bool is_unprintable(char32_t code) {
  return std::ranges::any_of(
      kUnprintable, [code](Range range) { return code >= range.first && code <= range.last; });
}

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
