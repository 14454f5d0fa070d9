#pragma once

namespace host::uikit {

/// Returns how far content follows a finger that has pulled it `distance` points beyond its edge,
/// in a view of `extent` points: less and less, and never a whole extent. Keeps the sign.
double rubber_band(double distance, double extent);

/// Returns the pull for which the content is `distance` points beyond its edge.
double undo_rubber_band(double distance, double extent);

/// A spring that pulls content to `target` without swinging past it.
struct Spring {
  /// Brings content back from beyond its edge in about three quarters of a second.
  static constexpr double kBounceFrequency = 11.0;
  /// Turns a page in less than half a second.
  static constexpr double kPageFrequency = 18.0;
  /// Within this distance of its target, in points, the spring is at rest.
  static constexpr double kRestDistance = 0.25;

  double target = 0;        // points
  double displacement = 0;  // points from the target at the start
  double velocity = 0;      // points per second at the start
  double frequency = kBounceFrequency;

  double position(double time) const;
  double velocity_at(double time) const;
  /// Seconds until the spring rests; 0 when it rests from the start.
  double duration() const;
  /// When the spring passes through its target, which happens only when it started towards it fast
  /// enough; negative when it never does.
  double crossing_time() const;
};

}  // namespace host::uikit
