#pragma once

#include <string_view>

namespace host::media {

// The media folder writes to the common log through these two functions, so only one of its files
// compiles the logging headers.
void log_note(std::string_view text);
void log_warning(std::string_view text);

}  // namespace host::media
