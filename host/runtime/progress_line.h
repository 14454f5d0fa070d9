#pragma once

#include <string_view>

namespace host {

/// Whether standard error is a terminal, where one line can show how far some long work is.
bool has_progress_line();

/// Shows the text in that line, in place of what it showed before. A message of the log takes the
/// line's place, and the next text comes below it.
void show_progress_line(std::string_view text);
void end_progress_line();

/// What a message of the log has to write first: it removes the line, if there is one.
std::string_view progress_line_removal();

}  // namespace host
