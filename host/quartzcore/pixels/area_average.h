#pragma once

#include "host/quartzcore/pixels/surface.h"

namespace host::quartzcore {

/// Returns a copy of the same or a smaller size. Every pixel is the mean of the part of the source
/// that it covers, rounded to the nearest level. `width` and `height` are at most the source's.
Surface area_average(const Surface& source, int width, int height);

}  // namespace host::quartzcore
