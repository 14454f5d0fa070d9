#pragma once

namespace host::uikit {

/// A mass on a spring that comes to rest at the end of its animation.
struct SpringCurve {
  double duration;  // seconds until it rests
  double damping;   // 1 comes to rest without swinging, less swings
  double velocity;  // at the start, in whole distances a second, towards the end

  /// How much of the distance is still to go at `time` seconds: 1 at the start, 0 at rest, negative
  /// when it has swung past.
  double remaining(double time) const;
};

}  // namespace host::uikit
