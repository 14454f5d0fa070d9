#pragma once

namespace host::uikit {

/// How far content follows a finger that has pulled it `distance` points beyond its edge, in a view
/// of `extent` points: less and less, never a whole extent. Signs are kept.
double rubber_band(double distance, double extent);

/// The pull that makes content hang `distance` points beyond its edge.
double undo_rubber_band(double distance, double extent);

/// A spring that pulls content to `target` without swinging past it.
struct Spring {
  /// Brings content that hangs beyond its edge back in about three quarters of a second.
  static constexpr double kBounceFrequency = 11.0;
  /// Turns a page in less than half a second.
  static constexpr double kPageFrequency = 18.0;
  /// Within this many points of its target the spring is at rest.
  static constexpr double kRestDistance = 0.25;

  double target = 0;        // points
  double displacement = 0;  // points from the target at the start
  double velocity = 0;      // points a second at the start
  double frequency = kBounceFrequency;

  double position(double time) const;
  double velocity_at(double time) const;
  /// Seconds until it is at rest; 0 when it is so from the start.
  double duration() const;
  /// When it runs through its target, which it does only when it started towards it fast enough;
  /// negative otherwise.
  double crossing_time() const;
};

}  // namespace host::uikit
