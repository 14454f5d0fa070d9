#pragma once

#include <cstddef>

#include "platform/Foundation/NSString.h"

namespace host::uikit {

// Words of any script; positions are in UTF-16 units.

/// Returns the word at `index`, or the one that ends there; the single character when there is
/// neither.
NSRange word_at(NSString text, std::size_t index);
/// Returns the end of the word that `index` is before or in.
std::size_t next_word_end(NSString text, std::size_t index);
/// Returns the start of the word that `index` is after or in.
std::size_t previous_word_start(NSString text, std::size_t index);

}  // namespace host::uikit
