#include "host/uikit/touch/velocity_tracker.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

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

TEST(VelocityTracker, OneReportHasNoVelocity) {
  VelocityTracker tracker;
  tracker.add({5, 5}, 1);
  EXPECT_EQ(tracker.velocity(1), CGPoint{});
}
}  // namespace
