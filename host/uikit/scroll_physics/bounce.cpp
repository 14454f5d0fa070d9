#include "host/uikit/scroll_physics/bounce.h"

#include <cmath>

namespace host::uikit {
namespace {

/// The initial ratio of the content's movement to the finger's beyond the edge.
constexpr double kFollowedShare = 0.55;

/// The critically damped spring is (displacement + slope * time) * exp(-frequency * time).
double slope(const Spring& spring) {
  return spring.velocity + spring.frequency * spring.displacement;
}

}  // namespace

double rubber_band(double distance, double extent) {
  if (extent <= 0) return 0;
  const double pull = std::abs(distance);
  const double followed = extent * (1 - 1 / (pull * kFollowedShare / extent + 1));
  return std::copysign(followed, distance);
}

double undo_rubber_band(double distance, double extent) {
  const double followed = std::abs(distance);
  if (extent <= 0 || followed >= extent) return distance;
  const double pull = extent / kFollowedShare * (1 / (1 - followed / extent) - 1);
  return std::copysign(pull, distance);
}

double Spring::position(double time) const {
  return target + (displacement + slope(*this) * time) * std::exp(-frequency * time);
}

double Spring::velocity_at(double time) const {
  const double height = displacement + slope(*this) * time;
  return (slope(*this) - frequency * height) * std::exp(-frequency * time);
}

double Spring::duration() const {
  if (std::abs(displacement) < kRestDistance && std::abs(velocity) < frequency * kRestDistance)
    return 0;
  const auto envelope = [&](double time) {
    return (std::abs(displacement) + std::abs(slope(*this)) * time) * std::exp(-frequency * time);
  };
  // After one period the envelope only falls, so the end can be bracketed and bisected.
  double before = 1 / frequency;
  if (envelope(before) < kRestDistance) return before;
  double after = before * 2;
  while (envelope(after) >= kRestDistance)
    after *= 2;
  constexpr double kPrecision = 1e-4;
  while (after - before > kPrecision) {
    const double middle = (before + after) / 2;
    (envelope(middle) < kRestDistance ? after : before) = middle;
  }
  return after;
}

double Spring::crossing_time() const {
  if (displacement == 0) return -1;
  const double time = -displacement / slope(*this);
  return std::isfinite(time) && time > 0 ? time : -1;
}

}  // namespace host::uikit
