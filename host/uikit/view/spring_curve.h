#pragma once

namespace host::uikit {

/// A mass on a spring that comes to rest at the end of its animation.
struct SpringCurve {
  double duration;  // seconds until it rests
  double damping;   // at 1 it rests without swinging; below 1 it swings
  double velocity;  // at the start, in whole distances per second, towards the end

  /// Returns how much of the distance remains at `time` seconds: 1 at the start, 0 at rest,
  /// negative when it has swung past.
  double remaining(double time) const;
};

}  // namespace host::uikit
