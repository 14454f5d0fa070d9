#pragma once

#include <algorithm>

#include "platform/CoreGraphics/CGGeometry.h"

namespace host::screen {

/// Fits a phone's screen into a window of another shape: as large as possible, centred.
struct Letterbox {
  CGRect place;      // of the screen, in the window's units
  double scale = 1;  // in the window's units per point

  static constexpr Letterbox fit(CGSize screen, CGSize window) {
    const double scale = std::min(window.width / screen.width, window.height / screen.height);
    const CGSize size{screen.width * scale, screen.height * scale};
    return {{{(window.width - size.width) / 2, (window.height - size.height) / 2}, size}, scale};
  }

  /// Converts a point of the window to a point of the screen.
  constexpr CGPoint point_at(CGPoint in_window) const {
    return {(in_window.x - place.origin.x) / scale, (in_window.y - place.origin.y) / scale};
  }
};

}  // namespace host::screen
