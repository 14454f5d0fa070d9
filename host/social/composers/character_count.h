#pragma once

#include <cstddef>

#include "platform/Foundation/NSString.h"

namespace host::social {

/// The maximum number of characters in a post.
inline constexpr std::ptrdiff_t kMostCharacters = 140;

/// Counts characters as a reader would: an emoji of several parts, or a letter with its marks, is
/// one, and one press of backspace deletes it.
std::size_t character_count(NSString text);

}  // namespace host::social
