#pragma once

#include <string>
#include <string_view>

namespace host {

/// Returns a message as it may be written to a log or a terminal: what breaks a line, reverses it
/// or moves the cursor is escaped, as are bytes that are not text. File names come from anywhere,
/// and none may forge a line.
std::string on_one_line(std::string_view message);

}  // namespace host
