#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "platform/Foundation/NSString.h"

namespace host::uikit {

/// Appends the UTF-16 units as valid UTF-8. Halves of a pair that stand alone and zero units become
/// U+FFFD: neither may reach the shaper.
void append_utf8(std::string& bytes, std::span<const unichar> units);

/// The nearest index at or before `index` at which a whole character begins: pairs, combining marks
/// and joined emoji are not taken apart, unless they go on absurdly long.
std::size_t character_start(NSString text, std::size_t index);
/// Where the character that begins at `index` ends.
std::size_t character_end(NSString text, std::size_t index);

/// How many UTF-16 units the first code points of UTF-8 make.
NSUInteger utf16_units(std::string_view text, int code_points);

}  // namespace host::uikit
