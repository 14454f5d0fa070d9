#pragma once

namespace host::uikit {

/// Motion along one axis after the finger has left: in every millisecond the velocity keeps `rate`
/// of itself. A closed formula of the time, so that it does not depend on how often it is asked.
struct Deceleration {
  /// Slower than this, in points a second, the eye takes it for rest.
  static constexpr double kStopVelocity = 10.0;

  double start = 0;     // points
  double velocity = 0;  // points a second
  double rate = 0.998;  // share of the velocity left after a millisecond, between 0 and 1

  /// Seconds until the motion is slower than `kStopVelocity`; 0 when it is so from the start.
  double duration() const;
  double position(double time) const;
  double velocity_at(double time) const;
  /// Where it comes to rest.
  double end() const { return position(duration()); }
  /// The time at which `position` is reached; negative when it never is.
  double time_at(double position) const;

  /// The motion from `start` that comes to rest at `target`.
  static Deceleration toward(double start, double target, double rate);
};

}  // namespace host::uikit
