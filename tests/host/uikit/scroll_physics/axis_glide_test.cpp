#include "host/uikit/scroll_physics/axis_glide.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace host::uikit {
namespace {

constexpr double kRate = 0.998;
constexpr OffsetRange kRange{0, 1000};

double furthest(const AxisGlide& glide) {
  double furthest = glide.position(0);
  for (double time = 0; time < glide.duration(); time += 0.005)
    furthest = std::max(furthest, glide.position(time));
  return furthest;
}

void expect_smooth(const AxisGlide& glide) {
  constexpr double kStep = 1e-4;
  for (double time = kStep; time < glide.duration() - kStep; time += 0.003) {
    const double moved = glide.position(time + kStep) - glide.position(time);
    EXPECT_NEAR(moved / kStep, glide.velocity(time), 40) << "at " << time;
  }
}

TEST(AxisGlide, InsideTheRangeItSlowsDownToThePredictedEnd) {
  const auto glide = AxisGlide::free(100, 800, kRange, kRate, Edges::Bounce);
  EXPECT_DOUBLE_EQ(glide.end(), (Deceleration{100, 800, kRate}.end()));
  EXPECT_DOUBLE_EQ(glide.position(glide.duration()), glide.end());
  EXPECT_EQ(glide.velocity(glide.duration()), 0);
}

TEST(AxisGlide, OverTheEdgeItSpringsBackToTheEdge) {
  const auto glide = AxisGlide::free(900, 2000, kRange, kRate, Edges::Bounce);
  EXPECT_EQ(glide.end(), 1000);
  EXPECT_GT(furthest(glide), 1020);
  EXPECT_EQ(glide.position(glide.duration() + 1), 1000);
  expect_smooth(glide);
}

TEST(AxisGlide, WithoutBounceItStopsAtTheEdge) {
  const auto glide = AxisGlide::free(900, 2000, kRange, kRate, Edges::Stop);
  EXPECT_EQ(glide.end(), 1000);
  EXPECT_LE(furthest(glide), 1000);
}

TEST(AxisGlide, LeftBeyondTheEdgeItReturnsToIt) {
  const auto glide = AxisGlide::free(-80, 0, kRange, kRate, Edges::Bounce);
  EXPECT_EQ(glide.position(0), -80);
  EXPECT_EQ(glide.end(), 0);
  EXPECT_GT(glide.duration(), 0.3);
  EXPECT_LT(glide.duration(), 1.0);
}

TEST(AxisGlide, ThrownInFromBeyondTheEdgeItRunsOnInside) {
  const auto glide = AxisGlide::free(-40, 2500, kRange, kRate, Edges::Bounce);
  EXPECT_GT(glide.end(), 200);
  expect_smooth(glide);
}

TEST(AxisGlide, AtRestItHasNoDuration) {
  EXPECT_EQ(AxisGlide::free(300, 0, kRange, kRate, Edges::Bounce).duration(), 0);
  EXPECT_EQ(AxisGlide(7).position(0), 7);
}

TEST(AxisGlide, AtTheEdgeAndPushedOutItBouncesOnce) {
  const auto glide = AxisGlide::free(1000, 1500, kRange, kRate, Edges::Bounce);
  EXPECT_GT(furthest(glide), 1010);
  EXPECT_EQ(glide.end(), 1000);
}

TEST(AxisGlide, ToATargetItRestsExactlyThere) {
  EXPECT_EQ(AxisGlide::to(0, 333, kRange, kRate).end(), 333);
  EXPECT_EQ(AxisGlide::to(-50, 0, kRange, kRate).position(10), 0);
}

TEST(AxisGlide, APageIsTurnedInUnderHalfASecondWithoutOvershoot) {
  for (const double velocity : {-400.0, 0.0, 900.0, 20000.0}) {
    const auto glide = AxisGlide::to_page(60, velocity, 375);
    EXPECT_LT(glide.duration(), 0.6);
    EXPECT_LE(furthest(glide), 375 + 1e-9);
    EXPECT_EQ(glide.position(glide.duration()), 375);
  }
}

}  // namespace
}  // namespace host::uikit
