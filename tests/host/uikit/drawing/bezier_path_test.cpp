#include <numbers>

#include "platform/UIKit/UIBezierPath.h"
#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIGraphics.h"
#include "tests/host/uikit/support/drawing_test.h"

namespace {

constexpr double kQuarter = std::numbers::pi / 2;

class BezierPath : public host::test::DrawingTest {};

TEST_F(BezierPath, AClockwiseArcFromTheTopGoesRight) {
  const UIBezierPath path = UIBezierPath::bezierPath();

  path.addArcWithCenter({50, 50}, 40, -kQuarter, 0, YES);

  const CGRect bounds = path.bounds();
  EXPECT_NEAR(bounds.min_x(), 50, 0.1);
  EXPECT_NEAR(bounds.max_x(), 90, 0.1);
  EXPECT_NEAR(bounds.min_y(), 10, 0.1);
  EXPECT_NEAR(bounds.max_y(), 50, 0.1);
  EXPECT_NEAR(path.currentPoint().x, 90, 1e-6);
}

TEST_F(BezierPath, ACounterclockwiseArcFromTheTopGoesTheLongWay) {
  const UIBezierPath path = UIBezierPath::bezierPath();
  path.addArcWithCenter({50, 50}, 40, -kQuarter, 0, NO);
  EXPECT_NEAR(path.bounds().min_x(), 10, 0.1);
}

TEST_F(BezierPath, AReturnedPathDoesNotChangeLater) {
  const UIBezierPath path = UIBezierPath::bezierPathWithRect({0, 0, 10, 10});
  const CGPathRef given = CGPathRetain(path.CGPath());

  path.addLineToPoint({100, 100});

  EXPECT_EQ(CGPathGetBoundingBox(given), (CGRect{0, 0, 10, 10}));
  EXPECT_EQ(path.bounds().max_x(), 100);
  CGPathRelease(given);
}

TEST_F(BezierPath, TransformsItsPoints) {
  const UIBezierPath path = UIBezierPath::bezierPathWithRect({0, 0, 10, 10});
  path.applyTransform({2, 0, 0, 3, 5, 7});
  EXPECT_EQ(path.bounds(), (CGRect{5, 7, 20, 30}));
}

TEST_F(BezierPath, ContainsPointsByItsFillRule) {
  const UIBezierPath path = UIBezierPath::bezierPathWithRect({0, 0, 30, 30});
  path.appendPath(UIBezierPath::bezierPathWithRect({10, 10, 10, 10}));

  EXPECT_TRUE(path.containsPoint({15, 15}));
  path.setUsesEvenOddFillRule(YES);
  EXPECT_FALSE(path.containsPoint({15, 15}));
}

TEST_F(BezierPath, FillsWithTheCurrentColour) {
  UIGraphicsBeginImageContext({10, 10});
  UIColor::blueColor().set();
  UIBezierPath::bezierPathWithOvalInRect({0, 0, 10, 10}).fill();
  const CGContextRef context = UIGraphicsGetCurrentContext();
  const auto* pixels = static_cast<const unsigned char*>(CGBitmapContextGetData(context));
  const auto* middle = pixels + 5 * CGBitmapContextGetBytesPerRow(context) + 5 * 4;

  EXPECT_EQ(middle[0], 255);
  EXPECT_EQ(middle[2], 0);
  EXPECT_LT(pixels[3], 255) << "the corner lies outside the oval";
  UIGraphicsEndImageContext();
}

}  // namespace
