#pragma once

#include "host/quartzcore/drawing/path.h"

namespace host::quartzcore {

/// Adds the part of a path between two ends, given as fractions of its length, to the drawing's
/// current path.
void add_part(const Path& path, double start, double end, cairo_t* drawing);

}  // namespace host::quartzcore
