#include "host/uikit/scroll_physics/deceleration.h"

#include <cmath>

namespace host::uikit {
namespace {

constexpr double kMillisecondsPerSecond = 1000.0;

/// How far a velocity of one point per second carries, in points: the infinite sum of the
/// velocities left after one millisecond, two, three and so on.
double reach(double rate) {
  return rate / (1 - rate) / kMillisecondsPerSecond;
}

double share_left(double rate, double time) {
  return std::pow(rate, time * kMillisecondsPerSecond);
}

double time_until_left(double rate, double share) {
  return std::log(share) / std::log(rate) / kMillisecondsPerSecond;
}

}  // namespace

double Deceleration::duration() const {
  if (std::abs(velocity) <= kStopVelocity) return 0;
  return time_until_left(rate, kStopVelocity / std::abs(velocity));
}

double Deceleration::position(double time) const {
  return start + velocity * reach(rate) * (1 - share_left(rate, time));
}

double Deceleration::velocity_at(double time) const {
  return velocity * share_left(rate, time);
}

double Deceleration::time_at(double position) const {
  if (position == start) return 0;
  const double share = 1 - (position - start) / (velocity * reach(rate));
  if (!(share > 0 && share < 1)) return -1;
  const double time = time_until_left(rate, share);
  return time <= duration() ? time : -1;
}

Deceleration Deceleration::toward(double start, double target, double rate) {
  const double distance = target - start;
  if (distance == 0) return {start, 0, rate};
  // The last stretch, below the stop velocity, is never travelled; the velocity makes up for it.
  return {start, distance / reach(rate) + std::copysign(kStopVelocity, distance), rate};
}

}  // namespace host::uikit
