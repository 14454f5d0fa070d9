#pragma once

#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "host/console/result.h"
#include "host/console/value.h"

namespace host::console {

struct Expression;

struct TextLiteral {
  std::string text;
};

/// YES, NO, nil, a shared global or a class.
struct Name {
  std::string text;
};

struct Braces {
  std::vector<Expression> elements;
};

struct Message {
  std::unique_ptr<Expression> receiver;
  std::string selector;
  std::size_t selector_offset = 0;
  std::vector<Expression> arguments;
};

/// One expression as it was written; `offset` and `end` are byte offsets in its line.
struct Expression {
  std::size_t offset = 0;
  std::size_t end = 0;
  std::variant<Number, TextLiteral, Name, Braces, Message> content;
};

}  // namespace host::console
