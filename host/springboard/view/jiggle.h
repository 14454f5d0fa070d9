#pragma once

#include <cstddef>

#include "platform/QuartzCore/CALayer.h"

namespace host::springboard {

/// Lets a layer wobble without end. Neighbours are given different phases, so that a page of icons
/// trembles and does not swing in step.
void start_jiggle(CALayer layer, std::size_t phase);
void stop_jiggle(CALayer layer);

}  // namespace host::springboard
