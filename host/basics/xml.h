#pragma once

#include <cstdio>
#include <string>
#include <string_view>

#include "host/basics/utf8.h"

namespace host::xml {

/// Returns a text as it is written between tags.
inline std::string escaped(std::string_view text) {
  std::string xml;
  for (const char sign : text) {
    if (sign == '<') {
      xml += "&lt;";
    } else if (sign == '>') {
      xml += "&gt;";
    } else if (sign == '&') {
      xml += "&amp;";
    } else {
      xml += sign;
    }
  }
  return xml;
}

/// Returns bytes from anywhere as a text that a document may contain: what is not text, and the
/// characters that XML forbids, become U+FFFD.
inline std::string as_text(std::string_view bytes) {
  constexpr char32_t kReplacement = 0xFFFD;
  std::string text;
  while (!bytes.empty()) {
    const utf8::Letter letter = utf8::first_letter(bytes);
    const std::size_t length = letter.bytes == 0 ? 1 : letter.bytes;
    const bool is_blank = letter.code == '\t' || letter.code == '\n' || letter.code == '\r';
    const bool is_control = letter.code < ' ' && !is_blank;
    const bool is_allowed = letter.bytes > 0 && !is_control && (letter.code & 0xFFFE) != 0xFFFE;
    utf8::append(text, is_allowed ? letter.code : kReplacement);
    bytes.remove_prefix(length);
  }
  return text;
}

/// Returns a text as it is written as an attribute's value, between double quotes.
inline std::string attribute(std::string_view text) {
  std::string xml;
  for (const char sign : escaped(text)) {
    if (sign == '"') {
      xml += "&quot;";
    } else if (sign == '\t' || sign == '\n' || sign == '\r') {
      // Readers turn these into blanks unless they are numbers.
      char number[8];
      std::snprintf(number, sizeof number, "&#%d;", sign);
      xml += number;
    } else {
      xml += sign;
    }
  }
  return xml;
}

}  // namespace host::xml
