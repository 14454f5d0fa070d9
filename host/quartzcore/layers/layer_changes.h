#pragma once

#include <cstdint>

namespace host::quartzcore {

/// Counts every change that may change what is drawn: equal numbers mean an equal picture, as long
/// as nothing is animated.
std::uint64_t layer_changes();
void note_layer_change();

}  // namespace host::quartzcore
