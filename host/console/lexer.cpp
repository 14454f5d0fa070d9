#include "host/console/lexer.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>

namespace host::console {
namespace {

constexpr std::string_view kSymbols = "[]{},:";
constexpr std::string_view kComparisons[] = {"==", "!=", "<=", ">=", "~=", "<", ">"};

constexpr bool is_digit(char c) {
  return c >= '0' && c <= '9';
}
constexpr bool begins_name(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}
constexpr bool is_blank(char c) {
  return c == ' ' || c == '\t' || c == '\r';
}

std::string shown(char c) {
  const bool plain = c >= ' ' && c <= '~';
  return plain ? fmt::format("'{}'", c) : fmt::format("byte {}", static_cast<unsigned char>(c));
}

std::optional<char> unescaped(char c) {
  switch (c) {
    case 'n':
      return '\n';
    case 't':
      return '\t';
    case '"':
    case '\\':
      return c;
    default:
      return std::nullopt;
  }
}

}  // namespace

Result<Token> Lexer::peek() {
  std::size_t at = position_;
  return read(at);
}

Result<Token> Lexer::take() {
  return read(position_);
}

Result<Token> Lexer::read(std::size_t& at) const {
  while (at < line_.size() && is_blank(line_[at]))
    ++at;
  Token token;
  token.offset = at;
  if (at == line_.size()) return token;

  const char first = line_[at];
  const auto rest = line_.substr(at);
  if (rest.starts_with("@\"")) return read_text(at);
  const bool signed_number =
      first == '-' && rest.size() > 1 && (is_digit(rest[1]) || rest[1] == '.');
  const bool fraction = first == '.' && rest.size() > 1 && is_digit(rest[1]);
  if (is_digit(first) || signed_number || fraction) return read_number(at);

  for (const std::string_view comparison : kComparisons) {
    if (!rest.starts_with(comparison)) continue;
    token.kind = Token::Kind::Comparison;
    token.text = comparison;
    at += comparison.size();
    return token;
  }
  if (kSymbols.find(first) != std::string_view::npos) {
    token.kind = Token::Kind::Symbol;
    token.text = first;
    ++at;
    return token;
  }
  if (begins_name(first)) {
    const auto end = std::find_if_not(rest.begin(), rest.end(),
                                      [](char c) { return begins_name(c) || is_digit(c); });
    token.kind = Token::Kind::Name;
    token.text.assign(rest.begin(), end);
    at += token.text.size();
    return token;
  }
  return Problem{fmt::format("an expression cannot begin with {}", shown(first)), at};
}

Result<Token> Lexer::read_text(std::size_t& at) const {
  Token token;
  token.kind = Token::Kind::Text;
  token.offset = at;
  for (std::size_t i = at + 2; i < line_.size(); ++i) {
    if (line_[i] == '"') {
      at = i + 1;
      return token;
    }
    if (line_[i] != '\\') {
      token.text += line_[i];
      continue;
    }
    const auto meant = i + 1 < line_.size() ? unescaped(line_[i + 1]) : std::nullopt;
    if (!meant) return Problem{"unknown escape in text", i};
    token.text += *meant;
    ++i;
  }
  return Problem{"text is not closed", at};
}

Result<Token> Lexer::read_number(std::size_t& at) const {
  Token token;
  token.kind = Token::Kind::Number;
  token.offset = at;
  const char* first = line_.data() + at;
  const char* last = line_.data() + line_.size();
  double value = 0;
  const auto read = std::from_chars(first, last, value);
  const bool runs_on = read.ptr != last && (begins_name(*read.ptr) || *read.ptr == '.');
  if (read.ec != std::errc() || runs_on) return Problem{"not a number", at};

  long long whole = 0;
  const auto read_whole = std::from_chars(first, read.ptr, whole);
  if (read_whole.ec == std::errc() && read_whole.ptr == read.ptr) {
    token.number = {static_cast<long double>(whole), Number::Form::Integer};
  } else {
    token.number = {value, Number::Form::Double};
  }
  at += static_cast<std::size_t>(read.ptr - first);
  return token;
}

}  // namespace host::console
