#pragma once

#include <cstddef>
#include <string_view>

namespace host {

/// In bytes. Both ends of the console refuse longer lines with an error.
inline constexpr std::size_t kLongestConsoleLine = std::size_t{64} * 1024;

/// Begins each line of an answer that has several; `ok` or an error follows them. No other answer
/// begins with a blank.
inline constexpr std::string_view kListedLine = "  ";

}  // namespace host
