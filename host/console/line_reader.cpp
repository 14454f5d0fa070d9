#include "host/console/line_reader.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>

namespace host::console {
namespace {

constexpr std::string_view kBlanks = " \t\r";

}  // namespace

void LineReader::skip_blanks() {
  position_ = std::min(line_.find_first_not_of(kBlanks, position_), line_.size());
}

bool LineReader::at_end() {
  skip_blanks();
  return position_ == line_.size() || line_[position_] == '#';
}

std::string_view LineReader::peek_word() {
  skip_blanks();
  const auto end = std::min(line_.find_first_of(kBlanks, position_), line_.size());
  return line_.substr(position_, end - position_);
}

std::string_view LineReader::word() {
  const auto taken = peek_word();
  position_ += taken.size();
  return taken;
}

std::string_view LineReader::rest() {
  skip_blanks();
  const auto left = line_.substr(position_);
  const auto last = left.find_last_not_of(kBlanks);
  position_ = line_.size();
  return last == std::string_view::npos ? std::string_view() : left.substr(0, last + 1);
}

Result<double> LineReader::number(std::string_view what) {
  const auto text = peek_word();
  double value = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  const bool whole = read.ec == std::errc() && read.ptr == text.data() + text.size();
  if (!whole || !std::isfinite(value)) return problem(fmt::format("{} is missing", what));
  position_ += text.size();
  return value;
}

Result<Expression> LineReader::expression() {
  Lexer lexer(line_, position_);
  auto made = parse_expression(lexer);
  position_ = made ? lexer.position() : made.problem().offset;
  return made;
}

Result<Token> LineReader::comparison() {
  Lexer lexer(line_, position_);
  auto token = lexer.take();
  if (token && token->kind == Token::Kind::Comparison) {
    position_ = lexer.position();
    return token;
  }
  skip_blanks();
  return problem("a comparison (==, !=, <, <=, >, >= or ~=) is missing");
}

Check LineReader::end() {
  if (at_end()) return std::nullopt;
  return problem(fmt::format("unexpected text: {}", line_.substr(position_)));
}

}  // namespace host::console
