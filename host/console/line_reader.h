#pragma once

#include <string>
#include <string_view>

#include "host/console/lexer.h"
#include "host/console/parser.h"

namespace host::console {

/// Reads the parts of one command line from left to right. Each problem has the position where the
/// part was expected.
class LineReader {
 public:
  explicit LineReader(std::string_view line) : line_(line) {}

  std::string_view line() const { return line_; }
  std::size_t position() const { return position_; }

  /// Returns whether only blanks and a comment are left.
  bool at_end();
  /// Takes the text up to the next blank; empty at the end.
  std::string_view word();
  /// The next word without taking it.
  std::string_view peek_word();
  /// Takes the rest of the line, without the blanks around it.
  std::string_view rest();

  Result<double> number(std::string_view what);
  Result<Expression> expression();
  /// `==`, `<=`, …
  Result<Token> comparison();
  /// Returns a problem when anything is left.
  Check end();

  Problem problem(std::string text) const { return {std::move(text), position_}; }

 private:
  void skip_blanks();

  std::string_view line_;
  std::size_t position_ = 0;
};

}  // namespace host::console
