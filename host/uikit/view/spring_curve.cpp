#include "host/uikit/view/spring_curve.h"

#include <cmath>

namespace host::uikit {
namespace {

// The spring counts as at rest when this share of the distance remains: less than half a pixel on a
// screen of two thousand.
constexpr double kLogOfRest = 8.3;

}  // namespace

double SpringCurve::remaining(double time) const {
  if (time >= duration) return 0;
  if (damping >= 1) {
    const double rate = (kLogOfRest + 2) / duration;
    return std::exp(-rate * time) * (1 + (rate - velocity) * time);
  }
  const double decay = kLogOfRest / duration;
  const double frequency = decay / damping;
  const double swing = frequency * std::sqrt(1 - damping * damping);
  return std::exp(-decay * time) *
         (std::cos(swing * time) + (decay - velocity) / swing * std::sin(swing * time));
}

}  // namespace host::uikit
