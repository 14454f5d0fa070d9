#pragma once

#include <optional>
#include <string>

#include "host/console/expression.h"

namespace host::console {

/// Why the console does not send a message that takes any number of arguments; empty for any other
/// message, and for a list that nil ends at once. Such a method reads arguments that were not
/// passed.
std::optional<std::string> refusal_of_variadic(const Message& message);

}  // namespace host::console
