#include <gtest/gtest.h>

#include <cmath>

#include "host/uikit/touch/velocity_tracker.h"
#include "host/uikit/view/spring_curve.h"

namespace {

using host::uikit::SpringCurve;
using host::uikit::VelocityTracker;

constexpr double kFrame = 1.0 / 60;

TEST(VelocityTracker, SteadyMovementHasItsOwnSpeed) {
  VelocityTracker tracker;
  for (int i = 0; i <= 20; ++i)
    tracker.add({i * 3.0, i * -6.0}, i * kFrame);
  EXPECT_NEAR(tracker.velocity(20 * kFrame).x, 180, 1e-6);
  EXPECT_NEAR(tracker.velocity(20 * kFrame).y, -360, 1e-6);
}

TEST(VelocityTracker, LiftingBetweenTwoReportsKeepsTheSpeed) {
  VelocityTracker tracker;
  for (int i = 0; i <= 20; ++i)
    tracker.add({i * 3.0, 0}, i * kFrame);
  EXPECT_NEAR(tracker.velocity(21 * kFrame).x, 180, 1e-6);
}

TEST(VelocityTracker, APauseBeforeReleaseLeavesNoSpeed) {
  VelocityTracker tracker;
  for (int i = 0; i <= 20; ++i)
    tracker.add({i * 30.0, 0}, i * kFrame);
  EXPECT_EQ(tracker.velocity(20 * kFrame + 0.1).x, 0);
  const double half = tracker.velocity(20 * kFrame + 0.05).x;
  EXPECT_GT(half, 0);
  EXPECT_LT(half, 900);
}

TEST(VelocityTracker, LaterMovementCountsForMore) {
  VelocityTracker tracker;
  tracker.add({0, 0}, 0);
  tracker.add({0, 0}, 0.05);
  tracker.add({10, 0}, 0.1);
  EXPECT_GT(tracker.velocity(0.1).x, 100);
  EXPECT_LT(tracker.velocity(0.1).x, 200);
}

TEST(VelocityTracker, OneReportIsNoMovement) {
  VelocityTracker tracker;
  tracker.add({5, 5}, 1);
  EXPECT_EQ(tracker.velocity(1), CGPoint{});
}

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
