#pragma once

#include <cstddef>
#include <string_view>

#include "platform/Foundation/NSString.h"

namespace host::uikit {

/// Returns the nearest index at or before `index` at which a whole character begins. Surrogate
/// pairs, combining marks and joined emoji are kept together, unless the sequence is absurdly long.
std::size_t character_start(NSString text, std::size_t index);
/// Returns the end of the character that begins at `index`.
std::size_t character_end(NSString text, std::size_t index);

/// Returns the number of UTF-16 units in the first `code_points` code points of the UTF-8 text.
NSUInteger utf16_units(std::string_view text, int code_points);

}  // namespace host::uikit
