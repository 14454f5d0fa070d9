#include <charconv>
#include <optional>
#include <string>

#include "host/basics/utf16.h"
#include "host/property_list/cursor.h"
#include "host/property_list/encoding.h"
#include "host/property_list/forms.h"
#include "host/property_list/scalars.h"

// The form that people write by hand: `{key = value; list = (a, "b c"); bytes = <01 02>;}`. Numbers
// and switches are texts, except in the desktop's own spelling of them, `<*I5>`.

namespace host::property_list {
namespace {

bool is_bare(char c) {
  constexpr std::string_view kSigns = "!#$%&*+-./:?@^_|~";
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
         kSigns.find(c) != kSigns.npos;
}

bool is_octal(char c) {
  return c >= '0' && c <= '7';
}

class TextReader {
 public:
  TextReader(std::string_view text, Builder& builder) : at_(text, builder), builder_(builder) {}

  objc::Object top() {
    skip_remarks();
    const char first = at_.next();
    if (first != '{' && first != '(' && first != '<') return text_or_entries();
    const objc::Object list = value();
    return list ? if_last(list) : list;
  }

  objc::Object entries_at_top() {
    skip_remarks();
    return at_.next() == '{' ? top() : entries(false);
  }

 private:
  void skip_remarks() {
    for (;;) {
      at_.skip_spaces();
      if (at_.take("//")) {
        at_.take_while([](char c) { return c != '\n' && c != '\r'; });
      } else if (!at_.take("/*")) {
        return;
      } else if (!at_.skip_past("*/")) {
        at_.damaged("a comment does not end");
      }
    }
  }

  objc::Object if_last(objc::Object list) {
    skip_remarks();
    return at_.is_at_end() ? list : at_.damaged("something follows the list");
  }

  /// A single text, unless it turns out to be the first key.
  objc::Object text_or_entries() {
    const Cursor begin = at_;
    if (at_.is_at_end()) return entries(false);
    const auto text = word();
    if (!text) return nil;
    skip_remarks();
    if (at_.is_at_end()) return builder_.text(*text);
    at_ = begin;
    return entries(false);
  }

  objc::Object value() {
    skip_remarks();
    if (at_.next() == '<') return bytes_or_scalar();
    if (at_.next() != '{' && at_.next() != '(') {
      const auto text = word();
      return text ? builder_.text(*text) : objc::Object();
    }
    if (!builder_.enter()) return nil;
    const auto made = at_.take('{') ? entries(true) : array();
    builder_.leave();
    return made;
  }

  objc::Object array() {
    at_.skip();
    Objects objects;
    for (skip_remarks(); !at_.take(')'); skip_remarks()) {
      const objc::Object object = value();
      if (!object) return nil;
      objects.push_back(object);
      skip_remarks();
      if (!at_.take(',') && at_.next() != ')') return at_.damaged("a ',' or ')' is missing");
    }
    return builder_.array(objects);
  }

  bool is_at_end_of_entries(bool in_braces) const {
    return in_braces ? at_.next() == '}' : at_.is_at_end();
  }

  objc::Object entries(bool in_braces) {
    Objects keys;
    Objects values;
    for (skip_remarks(); !is_at_end_of_entries(in_braces); skip_remarks()) {
      const auto key = word();
      if (!key) return nil;
      keys.push_back(builder_.key(*key));
      skip_remarks();
      values.push_back(at_.take('=') ? value() : builder_.text(*key));
      if (!keys.back() || !values.back()) return nil;
      skip_remarks();
      if (!at_.take(';') && !is_at_end_of_entries(in_braces))
        return at_.damaged("a ';' is missing");
    }
    at_.skip();
    return builder_.dictionary(keys, values);
  }

  /// A text, with or without quotes; nothing after a problem.
  std::optional<std::string> word() {
    const char quote = at_.next();
    if (quote == '"' || quote == '\'') return quoted(quote);
    const auto bare = at_.take_while(&is_bare);
    if (!bare.empty()) return std::string(bare);
    at_.damaged(at_.is_at_end() ? "it ends too early" : "a text is missing");
    return std::nullopt;
  }

  std::optional<std::string> quoted(char quote) {
    at_.skip();
    std::string text;
    for (;;) {
      text += at_.take_while([quote](char c) { return c != quote && c != '\\'; });
      if (at_.take(quote)) return text;
      if (at_.take('\\') && !at_.is_at_end()) {
        if (append_escaped(text)) continue;
        at_.damaged("half a character");
      } else {
        at_.damaged("a quote does not end");
      }
      return std::nullopt;
    }
  }

  bool append_escaped(std::string& text) {
    constexpr std::string_view kNames = "abfnrtv";
    constexpr std::string_view kCharacters = "\a\b\f\n\r\t\v";
    if (is_octal(at_.next())) return append_character(text, octal());
    const char name = at_.next();
    if (name == 'U' || name == 'u') return append_units(text);
    at_.skip();
    const auto known = kNames.find(name);
    text += known == kNames.npos ? name : kCharacters[known];
    return true;
  }

  std::uint32_t octal() {
    std::uint32_t code = 0;
    for (int i = 0; i < 3 && is_octal(at_.next()); ++i, at_.skip())
      code = code * 8 + static_cast<std::uint32_t>(at_.next() - '0');
    return code;
  }

  /// Reads `U00fc` or, for a character beyond them, `Ud83c\Udfb5`.
  bool append_units(std::string& text) {
    const auto first = unit();
    if (!first) return false;
    if (!utf16::is_high(*first)) return append_character(text, *first);
    if (!at_.take('\\')) return false;
    const auto second = unit();
    return second && utf16::is_low(*second) &&
           append_character(text, utf16::joined(*first, *second));
  }

  std::optional<std::uint16_t> unit() {
    constexpr std::size_t kDigits = 4;
    if (!at_.take('U') && !at_.take('u')) return std::nullopt;
    const std::string_view digits = at_.rest().substr(0, kDigits);
    std::uint16_t code = 0;
    const char* end = digits.data() + digits.size();
    const auto parsed = std::from_chars(digits.data(), end, code, 16);
    at_.skip(static_cast<std::size_t>(parsed.ptr - digits.data()));
    return digits.empty() ? std::nullopt : std::optional(code);
  }

  objc::Object bytes_or_scalar() {
    at_.skip();
    std::string_view inside;
    if (!at_.take_until(">", inside)) return at_.damaged("a '>' is missing");
    return inside.starts_with('*') ? scalar(inside.substr(1)) : bytes(inside);
  }

  objc::Object bytes(std::string_view digits) {
    std::string bytes;
    std::string pair;
    for (const char digit : digits) {
      if (digit == ' ' || (digit >= '\t' && digit <= '\r')) continue;
      pair += digit;
      if (pair.size() < 2) continue;
      unsigned char byte = 0;
      if (std::from_chars(pair.data(), pair.data() + 2, byte, 16).ptr != pair.data() + 2) break;
      bytes += static_cast<char>(byte);
      pair.clear();
    }
    return pair.empty() ? builder_.data(bytes) : at_.damaged("bytes that are not hexadecimal");
  }

  objc::Object scalar(std::string_view text) {
    if (text == "BY" || text == "BN") return builder_.boolean(text == "BY");
    if (text.starts_with('I')) return integer_from(text.substr(1), builder_);
    if (text.starts_with('R')) return real_from(text.substr(1), builder_);
    if (text.starts_with('D')) return date_from(text.substr(1), builder_);
    return at_.damaged("a value of no known kind");
  }

  Cursor at_;
  Builder& builder_;
};

}  // namespace

objc::Object read_text(std::string_view text, Builder& builder) {
  return TextReader(text, builder).top();
}

objc::Object read_entries(std::string_view text, Builder& builder) {
  return TextReader(text, builder).entries_at_top();
}

}  // namespace host::property_list
