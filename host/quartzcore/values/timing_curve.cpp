#include "host/quartzcore/values/timing_curve.h"

#include <cmath>

namespace host::quartzcore {
namespace {

// A thousandth of a pixel for a movement over the height of the screen.
constexpr double kPrecision = 1e-7;

double curve(double a, double b, double t) {
  const double rest = 1 - t;
  return 3 * rest * rest * t * a + 3 * rest * t * t * b + t * t * t;
}

double slope(double a, double b, double t) {
  const double rest = 1 - t;
  return 3 * rest * rest * a + 6 * rest * t * (b - a) + 3 * t * t * (1 - b);
}

double parameter_by_halving(double x1, double x2, double x) {
  double low = 0, high = 1;
  while (high - low > kPrecision) {
    const double middle = (low + high) / 2;
    (curve(x1, x2, middle) < x ? low : high) = middle;
  }
  return (low + high) / 2;
}

double parameter_at(double x1, double x2, double x) {
  double t = x;
  for (int i = 0; i < 8; ++i) {
    const double error = curve(x1, x2, t) - x;
    if (std::abs(error) < kPrecision) return t;
    const double steepness = slope(x1, x2, t);
    if (std::abs(steepness) < kPrecision) break;
    t -= error / steepness;
  }
  return parameter_by_halving(x1, x2, x);
}

}  // namespace

double TimingCurve::at(double time) const {
  if (time <= 0) return 0;
  if (time >= 1) return 1;
  if (*this == TimingCurve{}) return time;
  return curve(y1, y2, parameter_at(x1, x2, time));
}

}  // namespace host::quartzcore
