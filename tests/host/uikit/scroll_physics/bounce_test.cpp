#include "host/uikit/scroll_physics/bounce.h"

#include <gtest/gtest.h>

namespace host::uikit {
namespace {

TEST(RubberBand, TheFirstPointsFollowByFiftyFivePercent) {
  EXPECT_NEAR(rubber_band(1, 600), 0.55, 0.001);
  EXPECT_NEAR(rubber_band(-1, 600), -0.55, 0.001);
}

TEST(RubberBand, ItNeverReachesAWholeExtent) {
  EXPECT_LT(rubber_band(1e6, 600), 600);
  EXPECT_GT(rubber_band(1e6, 600), 590);
  EXPECT_LT(rubber_band(200, 600), 2 * rubber_band(100, 600));
}

TEST(RubberBand, UndoingReturnsThePull) {
  for (const double pull : {-300.0, -12.0, 0.0, 40.0, 900.0})
    EXPECT_NEAR(undo_rubber_band(rubber_band(pull, 480), 480), pull, 1e-6);
}

TEST(RubberBand, AViewWithoutExtentDoesNotFollow) {
  EXPECT_EQ(rubber_band(50, 0), 0);
}

TEST(Spring, FromRestItReachesItsTargetWithoutSwingingPast) {
  const Spring spring{100, -60, 0, Spring::kBounceFrequency};
  double last = spring.position(0);
  EXPECT_EQ(last, 40);
  for (double time = 0.01; time < spring.duration(); time += 0.01) {
    EXPECT_GT(spring.position(time), last);
    EXPECT_LT(spring.position(time), 100);
    last = spring.position(time);
  }
  EXPECT_NEAR(spring.position(spring.duration()), 100, Spring::kRestDistance);
  EXPECT_LT(spring.crossing_time(), 0);
}

TEST(Spring, TheVelocityIsTheSlopeOfThePosition) {
  const Spring spring{0, 30, 800, Spring::kBounceFrequency};
  for (const double time : {0.0, 0.05, 0.3}) {
    const double slope = (spring.position(time + 1e-6) - spring.position(time - 1e-6)) / 2e-6;
    EXPECT_NEAR(spring.velocity_at(time), slope, 1e-3);
  }
}

TEST(Spring, ThrownOverAnEdgeItGoesOutAndReturns) {
  const Spring spring{500, 0, 2000, Spring::kBounceFrequency};
  EXPECT_GT(spring.position(0.09), 530);
  EXPECT_NEAR(spring.position(spring.duration()), 500, Spring::kRestDistance);
  EXPECT_LT(spring.duration(), 1.2);
}

TEST(Spring, ThrownBackFastEnoughItRunsThroughItsTarget) {
  const Spring spring{0, -20, 1000, Spring::kBounceFrequency};
  const double crossing = spring.crossing_time();
  ASSERT_GT(crossing, 0);
  EXPECT_NEAR(spring.position(crossing), 0, 1e-9);
  EXPECT_GT(spring.velocity_at(crossing), 0);
}

TEST(Spring, AtItsTargetAndStillItIsAtRest) {
  EXPECT_EQ((Spring{10, 0, 0, Spring::kBounceFrequency}.duration()), 0);
}

}  // namespace
}  // namespace host::uikit
