#pragma once

#include <cmath>

#include "host/runtime/device_model.h"
#include "platform/CoreGraphics/CGGeometry.h"

namespace host {

/// The nearest place, in points, where a pixel of the screen begins: between two pixels every image
/// of the content would have to be blended anew.
inline double on_pixel(double points) {
  const double scale = current_device().scale;
  return std::round(points * scale) / scale;
}

inline CGPoint on_pixel(CGPoint point) {
  return {on_pixel(point.x), on_pixel(point.y)};
}

/// The thinnest line of the screen, in points.
inline double hairline() {
  return 1 / current_device().scale;
}

}  // namespace host
