#pragma once

#include <string_view>

namespace host::media {

// The media folder writes to the common log through these functions, so only one of its files
// compiles the logging headers.
void log_note(std::string_view text);
void log_warning(std::string_view text);

// A warning that the user must see, who is told in a few words.
void warn_user(std::string_view text, std::string_view few_words);

}  // namespace host::media
