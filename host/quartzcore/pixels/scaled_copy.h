#pragma once

#include "host/quartzcore/pixels/surface.h"

namespace host::quartzcore {

/// A copy of another size. Shrinking averages all pixels, so nothing flickers or is lost.
Surface scaled_copy(const Surface& source, int width, int height);

}  // namespace host::quartzcore
