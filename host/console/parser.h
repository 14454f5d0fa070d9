#pragma once

#include "host/console/expression.h"
#include "host/console/lexer.h"

namespace host::console {

/// Takes one expression from the lexer; what follows it on the line is left to the caller.
Result<Expression> parse_expression(Lexer& lexer);

}  // namespace host::console
