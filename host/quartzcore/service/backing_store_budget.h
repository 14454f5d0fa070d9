#pragma once

#include <cstddef>

namespace host::quartzcore {

// A scrolled list of thousands of labels would keep a picture of each, so all backing stores share
// a budget. When it is exceeded, the pictures of layers that are clipped away are released, the
// oldest first, and drawn again once the layers become visible.

/// In bytes: a few screens full of text.
inline constexpr std::size_t kBackingStoreBudget = 8 << 20;

/// Enforces the budget, as far as the oldest pictures are out of sight.
void trim_backing_stores();

}  // namespace host::quartzcore
