#pragma once

#include <cstddef>

#include "platform/QuartzCore/CALayer.h"

namespace host::quartzcore {

// The pictures that layers have drawn of themselves. A scrolled list of thousands of labels would
// keep a picture of each: so all of them together have a budget. Beyond it the pictures of layers
// that are clipped away are let go, the oldest first, and drawn again once they come into sight.

/// Bytes; a few screens full of texts.
inline constexpr std::size_t kBackingStoreBudget = 8 << 20;

/// The layer has drawn itself anew. Not retained: it says when it ends.
void note_backing_store(CALayer layer, std::size_t bytes);
void forget_backing_store(CALayer layer);

/// Keeps to the budget, as far as the oldest pictures are out of sight.
void trim_backing_stores();

/// Bytes of all of them.
std::size_t backing_store_bytes();

}  // namespace host::quartzcore
