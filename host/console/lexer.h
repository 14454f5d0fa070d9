#pragma once

#include <string>
#include <string_view>

#include "host/console/result.h"
#include "host/console/value.h"

namespace host::console {

struct Token {
  enum class Kind { Number, Text, Name, Symbol, Comparison, End };
  Kind kind = Kind::End;
  std::size_t offset = 0;
  std::string text;  // the content of a text, or a name, symbol or comparison as written
  Number number;
};

/// Splits a line into tokens, one at a time, with one token of lookahead. The rest of the line is
/// left untouched, so commands can read it in their own way.
class Lexer {
 public:
  explicit Lexer(std::string_view line, std::size_t start = 0) : line_(line), position_(start) {}

  /// Returns the next token without taking it.
  Result<Token> peek();
  Result<Token> take();

  /// The byte offset after the last token taken.
  std::size_t position() const { return position_; }
  std::string_view line() const { return line_; }

 private:
  Result<Token> read(std::size_t& at) const;
  Result<Token> read_text(std::size_t& at) const;
  Result<Token> read_number(std::size_t& at) const;

  std::string_view line_;
  std::size_t position_;
};

}  // namespace host::console
