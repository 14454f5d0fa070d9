#pragma once

#include <cstddef>

#include "platform/QuartzCore/CALayer.h"

namespace host::springboard {

/// Makes a layer wobble endlessly. Neighbours get different phases; otherwise a page of icons would
/// swing in step.
void start_jiggle(CALayer layer, std::size_t phase);
void stop_jiggle(CALayer layer);

}  // namespace host::springboard
