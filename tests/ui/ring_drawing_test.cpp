#include <gmock/gmock.h>

#include "tests/ui/path_points.h"
#include "tests/ui/ring_test.h"

namespace sonavue::test {
namespace {

using RingDrawing = RingTest;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::Field;

constexpr double kClose = 0.001;

auto at(double x, double y) {
  return testing::AllOf(Field(&CGPoint::x, DoubleNear(x, kClose)),
                        Field(&CGPoint::y, DoubleNear(y, kClose)));
}

TEST_F(RingDrawing, TheBackgroundIsAFullCircleInsideTheBounds) {
  const auto ring = ring_of(100);

  const CGPathRef path = ring.backgroundLayer().path();

  EXPECT_THAT(path_points(path).front(), at(50, 1.25));
  EXPECT_NEAR(swept_angle(path, {50, 50}), 2 * M_PI, kClose);
  const CGRect box = CGPathGetPathBoundingBox(path);
  EXPECT_NEAR(box.min_x(), 1.25, 0.05);
  EXPECT_NEAR(box.max_y(), 98.75, 0.05);
}

TEST_F(RingDrawing, TheBackgroundHasAGapWhileIndeterminate) {
  const auto ring = ring_of(100);

  ring.setIndeterminate(YES);

  EXPECT_NEAR(swept_angle(ring.backgroundLayer().path(), {50, 50}), 1.7 * M_PI, kClose);
}

TEST_F(RingDrawing, ProgressRunsClockwiseFromTwelveOClock) {
  const auto ring = ring_of(100);

  ring.setProgress(0.25f, NO);
  show(ring);

  // The centre line of the arc, half its width inside the bounds.
  const auto points = path_points(ring.progressLayer().path());
  EXPECT_THAT(points.front(), at(50, 3.75));
  EXPECT_THAT(points.back(), at(96.25, 50));
  EXPECT_NEAR(swept_angle(ring.progressLayer().path(), {50, 50}), M_PI / 2, kClose);
}

TEST_F(RingDrawing, ProgressZeroIsAnArcOfLengthZero) {
  const auto ring = ring_of(100);

  const auto points = path_points(ring.progressLayer().path());

  ASSERT_FALSE(points.empty());
  EXPECT_THAT(points.front(), at(50, 3.75));
  EXPECT_THAT(points.back(), at(50, 3.75));
  EXPECT_NEAR(swept_angle(ring.progressLayer().path(), {50, 50}), 0, kClose);
}

TEST_F(RingDrawing, ProgressOneIsAFullCircle) {
  const auto ring = ring_of(100);

  ring.setProgress(1, NO);
  show(ring);

  EXPECT_NEAR(swept_angle(ring.progressLayer().path(), {50, 50}), 2 * M_PI, kClose);
}

TEST_F(RingDrawing, TheLabelShowsTheProgressInPercent) {
  const auto ring = ring_of(100);
  EXPECT_STREQ(ring.percentageLabel().text().UTF8String(), "0%");

  ring.setProgress(0.5f, NO);
  show(ring);

  EXPECT_STREQ(ring.percentageLabel().text().UTF8String(), "50%");
}

TEST_F(RingDrawing, WithoutAnActionThereIsNoIcon) {
  const auto ring = ring_of(100);

  EXPECT_TRUE(CGPathIsEmpty(ring.iconLayer().path()));
}

TEST_F(RingDrawing, SuccessIsACheckMark) {
  const auto ring = ring_of(100);

  ring.drawSuccess();

  // The L in units of 15 points, rotated 45 degrees to the left and moved to (23, 51).
  const double d = 15 * std::sqrt(0.5);
  EXPECT_THAT(path_points(ring.iconLayer().path()),
              ElementsAre(at(23, 51), at(23 + 2 * d, 51 + 2 * d), at(23 + 5 * d, 51 - d),
                          at(23 + 4 * d, 51 - 2 * d), at(23 + 2 * d, 51), at(23 + d, 51 - d)));
  EXPECT_TRUE(path_is_closed(ring.iconLayer().path()));
}

TEST_F(RingDrawing, FailureIsACrossAroundTheCentre) {
  const auto ring = ring_of(100);

  ring.drawFailure();

  // A plus with arms of one unit around (50, 50), rotated 45 degrees to the right.
  const double d = 15 * std::sqrt(0.5);
  EXPECT_THAT(path_points(ring.iconLayer().path()),
              ElementsAre(at(50 + d, 50 - 2 * d), at(50 + 2 * d, 50 - d), at(50 + d, 50),
                          at(50 + 2 * d, 50 + d), at(50 + d, 50 + 2 * d), at(50, 50 + d),
                          at(50 - d, 50 + 2 * d), at(50 - 2 * d, 50 + d), at(50 - d, 50),
                          at(50 - 2 * d, 50 - d), at(50 - d, 50 - 2 * d), at(50, 50 - d)));
  EXPECT_TRUE(path_is_closed(ring.iconLayer().path()));
}

TEST_F(RingDrawing, AnIconGrowsWithTheRing) {
  const auto ring = ring_of(50);
  ring.performAction(M13ProgressViewActionFailure, NO);
  const CGRect small = CGPathGetPathBoundingBox(ring.iconLayer().path());

  ring.setFrame({0, 0, 100, 100});
  show(ring);

  const CGRect large = CGPathGetPathBoundingBox(ring.iconLayer().path());
  EXPECT_NEAR(large.size.width, 2 * small.size.width, 0.05);
}

}  // namespace
}  // namespace sonavue::test
