#pragma once

#include "host/quartzcore/pixels/surface.h"

namespace host::quartzcore {

/// A smaller copy, or one of the same size: every pixel is the mean of the part of the source that
/// it covers, to the nearest level. `width` and `height` are at most the source's.
Surface area_average(const Surface& source, int width, int height);

}  // namespace host::quartzcore
