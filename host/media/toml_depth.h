#pragma once

#include <string_view>

namespace host::media {

// Returns whether brackets or the parts of a dotted key are nested deeper than any song entry
// needs. The parser, and what frees its result, use the stack for every level, so ask before
// parsing. The answer holds up to the first error in the text, where the parser stops.
bool is_toml_nested_too_deeply(std::string_view text);

}  // namespace host::media
