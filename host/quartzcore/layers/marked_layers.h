#pragma once

#include <cstddef>
#include <vector>

#include "objc/ref.h"
#include "platform/QuartzCore/CALayer.h"

namespace host::quartzcore {

// The layers that are marked for layout or display. They enter and leave the list by themselves and
// are not retained.

void add_marked_layer(CALayer layer);
void forget_marked_layer(CALayer layer);
std::size_t marked_layer_count();
/// Empties the list and returns its layers.
std::vector<objc::Ref<CALayer>> take_marked_layers();

}  // namespace host::quartzcore
