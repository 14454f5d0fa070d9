#pragma once

#include <string_view>

namespace host::media {

// The media folder speaks to the one log through this small door, so that only one of its files
// pays for the logging headers.
void log_note(std::string_view text);
void log_warning(std::string_view text);

}  // namespace host::media
