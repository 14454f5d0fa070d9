#pragma once

#include <cmath>

#include "host/runtime/device_model.h"
#include "platform/CoreGraphics/CGGeometry.h"

namespace host {

/// Returns the nearest position, in points, at which a pixel of the screen begins. Content at a
/// position between two pixels would have to be blended again.
inline double on_pixel(double points) {
  const double scale = current_device().scale;
  return std::round(points * scale) / scale;
}

inline CGPoint on_pixel(CGPoint point) {
  return {on_pixel(point.x), on_pixel(point.y)};
}

/// The thickness of the thinnest line on the screen, in points.
inline double hairline() {
  return 1 / current_device().scale;
}

}  // namespace host
