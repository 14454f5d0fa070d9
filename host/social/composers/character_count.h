#pragma once

#include <cstddef>

#include "platform/Foundation/NSString.h"

namespace host::social {

/// How many characters a post can have.
inline constexpr std::ptrdiff_t kMostCharacters = 140;

/// What a reader would count: an emoji of several parts, or a letter with its marks, is one, as it
/// is one press of backspace.
std::size_t character_count(NSString text);

}  // namespace host::social
