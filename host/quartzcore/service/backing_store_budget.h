#pragma once

#include <cstddef>

namespace host::quartzcore {

// A scrolled list of thousands of labels would keep a picture of each: so all backing stores
// together have a budget. Beyond it the pictures of layers that are clipped away are let go, the
// oldest first, and drawn again once they come into sight.

/// Bytes; a few screens full of texts.
inline constexpr std::size_t kBackingStoreBudget = 8 << 20;

/// Keeps to the budget, as far as the oldest pictures are out of sight.
void trim_backing_stores();

}  // namespace host::quartzcore
