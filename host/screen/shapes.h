#pragma once

#include <cairo.h>

#include <numbers>

#include "platform/CoreGraphics/CGGeometry.h"

namespace host::screen {

/// Adds a rectangle with round corners to the path.
inline void add_rounded(cairo_t* drawing, CGRect rect, double radius) {
  constexpr double kQuarter = std::numbers::pi / 2;
  cairo_new_sub_path(drawing);
  cairo_arc(drawing, rect.max_x() - radius, rect.min_y() + radius, radius, -kQuarter, 0);
  cairo_arc(drawing, rect.max_x() - radius, rect.max_y() - radius, radius, 0, kQuarter);
  cairo_arc(drawing, rect.min_x() + radius, rect.max_y() - radius, radius, kQuarter, 2 * kQuarter);
  cairo_arc(drawing, rect.min_x() + radius, rect.min_y() + radius, radius, 2 * kQuarter,
            3 * kQuarter);
  cairo_close_path(drawing);
}

}  // namespace host::screen
