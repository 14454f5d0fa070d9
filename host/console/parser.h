#pragma once

#include "host/console/expression.h"
#include "host/console/lexer.h"

namespace host::console {

/// Takes one expression from the lexer and leaves the rest of the line to the caller.
Result<Expression> parse_expression(Lexer& lexer);

}  // namespace host::console
