#pragma once

#include <optional>
#include <string>

namespace host::launcher {

/// Foundation cannot start with a variable that is not UTF-8: removes them from the environment of
/// this process and of those that it starts, each with a line in the log. Returns why the phone
/// cannot do without one of them.
std::optional<std::string> remove_unreadable_variables();

}  // namespace host::launcher
