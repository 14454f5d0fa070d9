#pragma once

#include <algorithm>
#include <cmath>

#include "host/basics/pixel_rect.h"
#include "platform/CoreGraphics/CGGeometry.h"

namespace host::quartzcore {

using host::PixelRect;

// Coordinates beyond this are off every screen. Clamping to it keeps integers from overflowing.
inline constexpr double kFarAway = 1e6;
inline int to_pixel(double value) {
  return static_cast<int>(std::clamp(value, -kFarAway, kFarAway));
}
/// Returns all pixels that `rect` touches.
inline PixelRect pixels_round(const CGRect& rect) {
  if (!(rect.size.width > 0) || !(rect.size.height > 0)) return {};
  return from_edges(
      to_pixel(std::floor(rect.min_x() + 1e-6)), to_pixel(std::floor(rect.min_y() + 1e-6)),
      to_pixel(std::ceil(rect.max_x() - 1e-6)), to_pixel(std::ceil(rect.max_y() - 1e-6)));
}
/// Returns the pixels whose edges are nearest to those of `rect`.
inline PixelRect nearest_pixels(const CGRect& rect) {
  return from_edges(to_pixel(std::round(rect.min_x())), to_pixel(std::round(rect.min_y())),
                    to_pixel(std::round(rect.max_x())), to_pixel(std::round(rect.max_y())));
}

}  // namespace host::quartzcore
