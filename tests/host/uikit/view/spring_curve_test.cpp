#include "host/uikit/view/spring_curve.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using host::uikit::SpringCurve;

TEST(SpringCurve, GoesFromTheWholeDistanceToRest) {
  for (const double damping : {0.3, 0.7, 1.0}) {
    const SpringCurve spring{0.5, damping, 0};
    EXPECT_DOUBLE_EQ(spring.remaining(0), 1);
    EXPECT_NEAR(spring.remaining(0.4999), 0, 0.01);
    EXPECT_EQ(spring.remaining(0.5), 0);
  }
}

TEST(SpringCurve, SwingsPastOnlyWhenLooselyDamped) {
  double least_loose = 1;
  double least_firm = 1;
  for (double time = 0; time < 0.5; time += 0.01) {
    least_loose = std::min(least_loose, SpringCurve{0.5, 0.3, 0}.remaining(time));
    least_firm = std::min(least_firm, SpringCurve{0.5, 1, 0}.remaining(time));
  }
  EXPECT_LT(least_loose, -0.1);
  EXPECT_GE(least_firm, 0);
}

TEST(SpringCurve, StartsWithItsVelocity) {
  const SpringCurve spring{0.5, 0.6, 4};
  const double step = 1e-6;
  EXPECT_NEAR((spring.remaining(step) - 1) / step, -4, 0.01);
}

}  // namespace
