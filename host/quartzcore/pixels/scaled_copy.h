#pragma once

#include "host/quartzcore/pixels/surface.h"

namespace host::quartzcore {

/// Returns a copy in another size. Shrinking averages all pixels, so no detail flickers or is lost.
Surface scaled_copy(const Surface& source, int width, int height);

}  // namespace host::quartzcore
