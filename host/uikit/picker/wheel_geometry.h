#pragma once

#include <algorithm>
#include <cmath>

namespace host::uikit {

/// The front of a wheel, seen level: how a row that lies `distance` along the rim from the middle
/// stands before the eye.
struct WheelGeometry {
  double radius = 1;

  /// Rows beyond this are on the back.
  double reach() const { return radius * 1.4; }
  bool is_seen(double distance) const { return std::abs(distance) < reach(); }
  double height_of(double distance) const { return radius * std::sin(distance / radius); }
  /// How much shorter a row is that the rim turns away.
  double shortening(double distance) const { return std::cos(distance / radius); }
  /// The way along the rim to what is seen so far above or below the middle.
  double distance_at(double height) const {
    return radius * std::asin(std::clamp(height / radius, -1.0, 1.0));
  }
};

}  // namespace host::uikit
