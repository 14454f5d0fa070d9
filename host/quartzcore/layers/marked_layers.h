#pragma once

#include <cstddef>
#include <vector>

#include "objc/ref.h"
#include "platform/QuartzCore/CALayer.h"

namespace host::quartzcore {

// The layers that are marked for layout or display. They enter and leave by themselves, so nothing
// here is retained.

void add_marked_layer(CALayer layer);
void forget_marked_layer(CALayer layer);
std::size_t marked_layer_count();
/// Empties the list.
std::vector<objc::Ref<CALayer>> take_marked_layers();

}  // namespace host::quartzcore
