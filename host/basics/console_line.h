#pragma once

#include <cstddef>

namespace host {

/// In bytes. Both ends of the console refuse longer lines with an error.
inline constexpr std::size_t kLongestConsoleLine = std::size_t{64} * 1024;

}  // namespace host
