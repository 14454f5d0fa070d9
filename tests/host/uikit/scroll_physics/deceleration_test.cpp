#include "host/uikit/scroll_physics/deceleration.h"

#include <gtest/gtest.h>

#include <cmath>

namespace host::uikit {
namespace {

TEST(Deceleration, TheRateIsTheShareLeftAfterOneMillisecond) {
  const Deceleration motion{0, 1000, 0.998};
  EXPECT_DOUBLE_EQ(motion.velocity_at(0.001), 998);
  EXPECT_NEAR(motion.velocity_at(1.0), 1000 * std::pow(0.998, 1000), 1e-9);
}

TEST(Deceleration, APositionIsTheSumOfTheVelocitiesOfEachMillisecond) {
  const Deceleration motion{100, 1000, 0.998};
  double expected = 100;
  double velocity = 1000;
  for (int millisecond = 0; millisecond < 250; ++millisecond) {
    velocity *= 0.998;
    expected += velocity / 1000;
  }
  EXPECT_NEAR(motion.position(0.25), expected, 1e-9);
}

TEST(Deceleration, TheFastRateStopsSooner) {
  const Deceleration normal{0, 1000, 0.998};
  const Deceleration fast{0, 1000, 0.99};
  EXPECT_LT(fast.duration(), normal.duration() / 4);
  EXPECT_LT(fast.end(), normal.end() / 4);
}

TEST(Deceleration, ItRestsWhereTheVelocityFallsBelowTheStopVelocity) {
  const Deceleration motion{0, -2000, 0.998};
  EXPECT_NEAR(motion.velocity_at(motion.duration()), -Deceleration::kStopVelocity, 1e-9);
  EXPECT_LT(motion.end(), -900);
}

TEST(Deceleration, SlowerThanTheStopVelocityItDoesNotMoveAtAll) {
  const Deceleration motion{42, 9, 0.998};
  EXPECT_EQ(motion.duration(), 0);
  EXPECT_EQ(motion.end(), 42);
}

TEST(Deceleration, TimeAtIsWhenAPositionIsReachedOrNegativeWhenItNeverIs) {
  const Deceleration motion{10, 1000, 0.998};
  const double time = motion.time_at(200);
  ASSERT_GT(time, 0);
  EXPECT_NEAR(motion.position(time), 200, 1e-9);
  EXPECT_LT(motion.time_at(9), 0);
  EXPECT_LT(motion.time_at(motion.end() + 1), 0);
}

TEST(Deceleration, TowardATargetRestsExactlyThere) {
  EXPECT_NEAR(Deceleration::toward(0, 333, 0.998).end(), 333, 1e-9);
  EXPECT_NEAR(Deceleration::toward(50, -7, 0.99).end(), -7, 1e-9);
  EXPECT_EQ(Deceleration::toward(5, 5, 0.998).duration(), 0);
}

}  // namespace
}  // namespace host::uikit
