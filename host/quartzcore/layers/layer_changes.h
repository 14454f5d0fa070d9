#pragma once

#include <cstdint>

namespace host::quartzcore {

/// The number of changes that may have affected the picture. Equal numbers mean an equal picture,
/// as long as nothing is animated.
std::uint64_t layer_changes();
void note_layer_change();

}  // namespace host::quartzcore
