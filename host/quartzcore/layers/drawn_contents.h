#pragma once

#include "platform/QuartzCore/CALayer.h"

namespace host::quartzcore {

/// Returns an image (+1) of what the layer draws itself, with the pixels that the screen has for
/// it. The layer must not be empty.
CGImageRef draw_contents(CALayer layer);

}  // namespace host::quartzcore
