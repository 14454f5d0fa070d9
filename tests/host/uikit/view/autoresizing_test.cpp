#include "host/uikit/view/autoresizing.h"

#include <gtest/gtest.h>

namespace {

using host::uikit::autoresized_frame;

constexpr CGSize kOld{100, 100};
constexpr CGSize kNew{200, 150};
constexpr CGRect kFrame{10, 20, 40, 30};

TEST(Autoresizing, WithoutFlexibleLengthsTheFrameStays) {
  EXPECT_EQ(autoresized_frame(kFrame, kOld, kNew, UIViewAutoresizingNone), kFrame);
}

TEST(Autoresizing, AFlexibleSizeTakesTheWholeChange) {
  const auto mask = UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight;
  EXPECT_EQ(autoresized_frame(kFrame, kOld, kNew, mask), CGRect(10, 20, 140, 80));
}

TEST(Autoresizing, AFlexibleMarginBeforeMovesTheView) {
  const auto mask = UIViewAutoresizingFlexibleLeftMargin | UIViewAutoresizingFlexibleTopMargin;
  EXPECT_EQ(autoresized_frame(kFrame, kOld, kNew, mask), CGRect(110, 70, 40, 30));
}

TEST(Autoresizing, SeveralFlexibleLengthsShareInProportion) {
  const auto mask = UIViewAutoresizingFlexibleLeftMargin | UIViewAutoresizingFlexibleRightMargin;
  const CGRect frame = autoresized_frame(kFrame, kOld, kNew, mask);
  // Left (10) and right (50) share a hundred points.
  EXPECT_NEAR(frame.origin.x, 10 + 100.0 * 10 / 60, 1e-9);
  EXPECT_EQ(frame.size.width, 40);
}

TEST(Autoresizing, FlexibleLengthsOfZeroShareEqually) {
  const auto mask = UIViewAutoresizingFlexibleLeftMargin | UIViewAutoresizingFlexibleRightMargin;
  const CGRect frame = autoresized_frame({0, 0, 100, 10}, kOld, kNew, mask);
  EXPECT_EQ(frame, CGRect(50, 0, 100, 10));
}

}  // namespace
