#pragma once

namespace host::uikit {

/// Motion along one axis after the finger has lifted: in every millisecond the velocity is
/// multiplied by `rate`. A closed formula of time, independent of how often it is evaluated.
struct Deceleration {
  /// In points per second; anything slower looks like rest.
  static constexpr double kStopVelocity = 10.0;

  double start = 0;     // points
  double velocity = 0;  // points per second
  double rate = 0.998;  // share of the velocity that is left after a millisecond, between 0 and 1

  /// Seconds until the motion is slower than `kStopVelocity`; 0 when it is from the start.
  double duration() const;
  double position(double time) const;
  double velocity_at(double time) const;
  /// Where the motion comes to rest.
  double end() const { return position(duration()); }
  /// Returns the time at which `position` is reached; negative when it never is.
  double time_at(double position) const;

  /// Returns the motion from `start` that comes to rest at `target`.
  static Deceleration toward(double start, double target, double rate);
};

}  // namespace host::uikit
