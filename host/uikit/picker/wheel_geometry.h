#pragma once

#include <algorithm>
#include <cmath>

namespace host::uikit {

/// The front of a wheel, seen from the side at eye level: how a row appears whose distance from the
/// middle, along the rim, is `distance`.
struct WheelGeometry {
  double radius = 1;

  /// Rows beyond this distance are on the back.
  double reach() const { return radius * 1.4; }
  bool is_seen(double distance) const { return std::abs(distance) < reach(); }
  double height_of(double distance) const { return radius * std::sin(distance / radius); }
  /// The factor by which the turn of the rim shortens a row.
  double shortening(double distance) const { return std::cos(distance / radius); }
  /// Returns the distance along the rim of the point seen at `height` above or below the middle.
  double distance_at(double height) const {
    return radius * std::asin(std::clamp(height / radius, -1.0, 1.0));
  }
};

}  // namespace host::uikit
