#pragma once

#include <cstddef>

#include "platform/Foundation/NSString.h"

namespace host::uikit {

// Words of any script; places in UTF-16 units.

/// The word at `index`, or the one that ends there; where there is none, the single character.
NSRange word_at(NSString text, std::size_t index);
/// The end of the word that `index` is before or in.
std::size_t next_word_end(NSString text, std::size_t index);
/// The start of the word that `index` is after or in.
std::size_t previous_word_start(NSString text, std::size_t index);

}  // namespace host::uikit
