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
  std::string text;  // a text's content, a name, a symbol or a comparison as written
  Number number;
};

/// Cuts a line into tokens, one at a time, with one token of foresight. Whatever stands after the
/// tokens that were taken is left alone, so commands can read the rest in their own way.
class Lexer {
 public:
  explicit Lexer(std::string_view line, std::size_t start = 0) : line_(line), position_(start) {}

  /// The token at the position, which stays where it is.
  Result<Token> peek();
  Result<Token> take();

  /// The byte after the last token taken.
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
