#include "host/console/parser.h"

#include <fmt/format.h>

namespace host::console {
namespace {

// Deeper nesting is a mistake, and could overflow the stack.
constexpr int kDeepestExpression = 64;

std::string shown(const Token& token) {
  switch (token.kind) {
    case Token::Kind::End:
      return "the end of the line";
    case Token::Kind::Number:
      return "a number";
    case Token::Kind::Text:
      return "a text";
    default:
      return fmt::format("'{}'", token.text);
  }
}

bool is_symbol(const Token& token, char symbol) {
  return token.kind == Token::Kind::Symbol && token.text[0] == symbol;
}

class Parser {
 public:
  explicit Parser(Lexer& lexer) : lexer_(lexer) {}

  Result<Expression> expression(int depth) {
    auto token = lexer_.take();
    if (!token) return token.problem();
    if (depth > kDeepestExpression) return Problem{"nested too deeply", token->offset};
    switch (token->kind) {
      case Token::Kind::Number:
        return whole(*token, token->number);
      case Token::Kind::Text:
        return whole(*token, TextLiteral{std::move(token->text)});
      case Token::Kind::Name:
        return whole(*token, Name{std::move(token->text)});
      default:
        break;
    }
    if (is_symbol(*token, '{')) return whole(*token, braces(depth));
    if (is_symbol(*token, '[')) return whole(*token, message(depth));
    return Problem{fmt::format("an expression cannot begin with {}", shown(*token)), token->offset};
  }

 private:
  template <class Content>
  Result<Expression> whole(const Token& first, Content content) {
    return Expression{first.offset, lexer_.position(), std::move(content)};
  }
  template <class Content>
  Result<Expression> whole(const Token& first, Result<Content> content) {
    if (!content) return content.problem();
    return whole(first, std::move(*content));
  }

  Result<Braces> braces(int depth) {
    Braces made;
    for (;;) {
      auto element = expression(depth + 1);
      if (!element) return element.problem();
      made.elements.push_back(std::move(*element));
      const auto next = lexer_.take();
      if (!next) return next.problem();
      if (is_symbol(*next, '}')) return made;
      if (!is_symbol(*next, ',')) {
        return Problem{fmt::format("expected ',' or '}}', not {}", shown(*next)), next->offset};
      }
    }
  }

  Result<Message> message(int depth) {
    auto receiver = expression(depth + 1);
    if (!receiver) return receiver.problem();
    const auto first = lexer_.take();
    if (!first) return first.problem();
    if (first->kind != Token::Kind::Name) {
      return Problem{fmt::format("expected a message, not {}", shown(*first)), first->offset};
    }
    Message made;
    made.receiver = std::make_unique<Expression>(std::move(*receiver));
    made.selector_offset = first->offset;
    made.selector = first->text;
    const auto next = lexer_.take();
    if (!next) return next.problem();
    if (is_symbol(*next, ']')) return made;
    if (!is_symbol(*next, ':')) {
      return Problem{fmt::format("expected ':' or ']', not {}", shown(*next)), next->offset};
    }
    if (const Check problem = message_arguments(made, depth)) return *problem;
    return made;
  }

  // The first part of the selector and its colon have already been read.
  Check message_arguments(Message& made, int depth) {
    for (;;) {
      made.selector += ':';
      auto argument = expression(depth + 1);
      if (!argument) return argument.problem();
      made.arguments.push_back(std::move(*argument));
      auto piece = lexer_.take();
      if (!piece) return piece.problem();
      if (is_symbol(*piece, ']')) return std::nullopt;
      // A part of a selector may be empty: `[timing initWithControlPoints:0 :0 :1 :1]`.
      if (piece->kind == Token::Kind::Name) {
        made.selector += piece->text;
        piece = lexer_.take();
        if (!piece) return piece.problem();
      }
      if (!is_symbol(*piece, ':')) {
        return Problem{fmt::format("expected ':' or ']', not {}", shown(*piece)), piece->offset};
      }
    }
  }

  Lexer& lexer_;
};

}  // namespace

Result<Expression> parse_expression(Lexer& lexer) {
  return Parser(lexer).expression(0);
}

}  // namespace host::console
