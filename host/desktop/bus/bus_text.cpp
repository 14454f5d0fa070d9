#include "host/desktop/bus/bus_text.h"

#include <algorithm>

#include "host/basics/printable.h"
#include "host/basics/utf8.h"

namespace host::desktop {
namespace {

constexpr char32_t kReplacement = 0xfffd;
constexpr char32_t kEllipsis = 0x2026;

/// Numbers that are reserved for a program's own use and never stand for a character.
bool is_no_character(char32_t code) {
  return (code >= 0xfdd0 && code <= 0xfdef) || (code & 0xfffe) == 0xfffe;
}

bool is_blank(char32_t code) {
  return code == '\t' || code == '\n' || code == '\r';
}

void append_shown(std::string& made, char32_t code) {
  if (is_blank(code)) {
    made += ' ';
  } else if (is_no_character(code)) {
    utf8::append(made, kReplacement);
  } else if (!is_unprintable(code)) {
    utf8::append(made, code);
  }
}

}  // namespace

std::string bus_text(std::string_view text) {
  std::string made;
  while (!text.empty()) {
    const utf8::Letter letter = utf8::first_letter(text);
    const std::size_t before = made.size();
    const bool is_zero = text.front() == '\0';
    append_shown(made, letter.bytes > 0 || is_zero ? letter.code : kReplacement);
    if (made.size() > kLongestBusText) {
      made.resize(before);
      utf8::append(made, kEllipsis);
      return made;
    }
    text.remove_prefix(std::max<std::size_t>(letter.bytes, 1));
  }
  return made;
}

}  // namespace host::desktop
