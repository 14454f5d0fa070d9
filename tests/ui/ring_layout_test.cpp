#include <gmock/gmock.h>

#include "tests/ui/ring_test.h"

namespace sonavue::test {
namespace {

using RingLayout = RingTest;

bool same_color(CGColorRef left, UIColor right) {
  return left && CGColorEqualToColor(left, right.CGColor());
}

TEST_F(RingLayout, StacksBackgroundProgressAndIconBelowTheLabel) {
  const auto ring = unseen_ring_of(40);

  const NSArray layers = ring.layer().sublayers();

  ASSERT_EQ(layers.count(), 4u);
  EXPECT_EQ(layers.objectAtIndex(0), ring.backgroundLayer());
  EXPECT_EQ(layers.objectAtIndex(1), ring.progressLayer());
  EXPECT_EQ(layers.objectAtIndex(2), ring.iconLayer());
  EXPECT_EQ(layers.objectAtIndex(3), ring.percentageLabel().layer());
}

TEST_F(RingLayout, StartsBlueOnClear) {
  const auto ring = unseen_ring_of(40);

  CGFloat parts[4] = {};
  ring.primaryColor().getRed(&parts[0], &parts[1], &parts[2], &parts[3]);
  EXPECT_THAT(parts, testing::ElementsAre(0, 0.47843137254901963, 1, 1));
  EXPECT_TRUE(same_color(ring.secondaryColor().CGColor(), ring.primaryColor()));
  EXPECT_EQ(CGColorGetAlpha(ring.backgroundColor().CGColor()), 0);
  EXPECT_DOUBLE_EQ(ring.animationDuration(), 0.3);
  EXPECT_EQ(ring.percentageFormatter().numberStyle(), NSNumberFormatterPercentStyle);
  EXPECT_EQ(ring.progress(), 0);
  EXPECT_FALSE(ring.displayLink());
}

TEST_F(RingLayout, StrokesTheRingsAndFillsTheIcon) {
  const auto ring = unseen_ring_of(100);

  const auto background = ring.backgroundLayer();
  EXPECT_TRUE(same_color(background.strokeColor(), ring.secondaryColor()));
  EXPECT_EQ(CGColorGetAlpha(background.fillColor()), 0);
  EXPECT_STREQ(background.lineCap().UTF8String(), "round");
  EXPECT_DOUBLE_EQ(background.lineWidth(), 2.5);

  const auto progress = ring.progressLayer();
  EXPECT_TRUE(same_color(progress.strokeColor(), ring.primaryColor()));
  EXPECT_EQ(progress.fillColor(), nullptr);
  EXPECT_STREQ(progress.lineCap().UTF8String(), "butt");
  EXPECT_DOUBLE_EQ(progress.lineWidth(), 7.5);

  EXPECT_TRUE(same_color(ring.iconLayer().fillColor(), ring.primaryColor()));
  EXPECT_STREQ(ring.iconLayer().fillRule().UTF8String(), "non-zero");
}

TEST_F(RingLayout, PlainInitMakesOneSetOfLayers) {
  const auto ring = M13ProgressViewRing::alloc().init().autorelease();

  EXPECT_EQ(ring.layer().sublayers().count(), 4u);
  EXPECT_EQ(ring.subviews().count(), 1u);
  EXPECT_EQ(ring.backgroundRingWidth(), 1);
}

TEST_F(RingLayout, ASmallRingIsOneAndThreePointsWide) {
  const auto ring = ring_of(40);

  EXPECT_EQ(ring.backgroundRingWidth(), 1);
  EXPECT_EQ(ring.progressRingWidth(), 3);
}

TEST_F(RingLayout, ALargeRingGrowsWithItsWidth) {
  const auto ring = ring_of(100);

  EXPECT_EQ(ring.backgroundRingWidth(), 2.5);
  EXPECT_EQ(ring.progressRingWidth(), 7.5);
}

TEST_F(RingLayout, RoundsTheBackgroundWidthToSinglePrecision) {
  const auto ring = ring_of(49);

  EXPECT_EQ(ring.backgroundRingWidth(), static_cast<double>(1.225f));
  EXPECT_EQ(ring.progressRingWidth(), 3 * static_cast<double>(1.225f));
}

TEST_F(RingLayout, LayingOutAtAnotherSizeFitsTheRings) {
  const auto ring = ring_of(40);

  ring.setFrame({0, 0, 100, 100});
  show(ring);

  EXPECT_EQ(ring.backgroundRingWidth(), 2.5);
  EXPECT_EQ(ring.progressRingWidth(), 7.5);
  EXPECT_EQ(ring.backgroundLayer().lineWidth(), 2.5);
  EXPECT_EQ(ring.progressLayer().lineWidth(), 7.5);
}

TEST_F(RingLayout, KeepsAnExplicitProgressWidth) {
  const auto ring = ring_of(40);
  EXPECT_FALSE(ring.progressRingWidthOverriden());

  ring.setProgressRingWidth(5);
  ring.setFrame({0, 0, 100, 100});
  show(ring);

  EXPECT_TRUE(ring.progressRingWidthOverriden());
  EXPECT_EQ(ring.progressRingWidth(), 5);
  EXPECT_EQ(ring.progressLayer().lineWidth(), 5);
  EXPECT_FALSE(ring.backgroundRingWidthOverriden());
  EXPECT_EQ(ring.backgroundRingWidth(), 2.5);
}

TEST_F(RingLayout, KeepsAnExplicitBackgroundWidthAndDerivesTheProgressWidth) {
  const auto ring = ring_of(40);
  EXPECT_FALSE(ring.backgroundRingWidthOverriden());

  ring.setBackgroundRingWidth(2);
  ring.setFrame({0, 0, 200, 200});
  show(ring);

  EXPECT_TRUE(ring.backgroundRingWidthOverriden());
  EXPECT_EQ(ring.backgroundRingWidth(), 2);
  EXPECT_EQ(ring.backgroundLayer().lineWidth(), 2);
  EXPECT_FALSE(ring.progressRingWidthOverriden());
  EXPECT_EQ(ring.progressRingWidth(), 6);
}

TEST_F(RingLayout, AFrameTallerThanWideBecomesSquare) {
  const auto ring = ring_of(100);

  ring.setFrame({7, 9, 40, 60});

  EXPECT_EQ(ring.frame(), CGRect(7, 9, 40, 40));
}

TEST_F(RingLayout, LayersAndLabelFillTheBounds) {
  const auto ring = ring_of(40);

  ring.setFrame({3, 4, 100, 100});
  show(ring);

  const CGRect bounds(0, 0, 100, 100);
  EXPECT_EQ(ring.backgroundLayer().frame(), bounds);
  EXPECT_EQ(ring.progressLayer().frame(), bounds);
  EXPECT_EQ(ring.iconLayer().frame(), bounds);
  EXPECT_EQ(ring.percentageLabel().frame(), bounds);
}

TEST_F(RingLayout, TheLabelIsCentredAndAFifthOfTheWidth) {
  const auto ring = ring_of(100);
  ring.setPrimaryColor(red());
  ring.setNeedsLayout();
  show(ring);

  const UILabel label = ring.percentageLabel();
  EXPECT_EQ(label.textAlignment(), NSTextAlignmentCenter);
  EXPECT_EQ(label.contentMode(), UIViewContentModeCenter);
  EXPECT_DOUBLE_EQ(label.font().pointSize(), 20);
  EXPECT_TRUE(same_color(label.textColor().CGColor(), red()));
}

TEST_F(RingLayout, ThePrimaryColourPaintsArcAndIconOnly) {
  const auto ring = ring_of(40);

  ring.setPrimaryColor(red());

  EXPECT_TRUE(same_color(ring.primaryColor().CGColor(), red()));
  EXPECT_TRUE(same_color(ring.progressLayer().strokeColor(), red()));
  EXPECT_TRUE(same_color(ring.iconLayer().fillColor(), red()));
  EXPECT_FALSE(same_color(ring.backgroundLayer().strokeColor(), red()));
  EXPECT_TRUE(ring.layer().needsDisplay());
}

TEST_F(RingLayout, TheSecondaryColourPaintsTheBackgroundRingOnly) {
  const auto ring = ring_of(40);

  ring.setSecondaryColor(green());

  EXPECT_TRUE(same_color(ring.secondaryColor().CGColor(), green()));
  EXPECT_TRUE(same_color(ring.backgroundLayer().strokeColor(), green()));
  EXPECT_FALSE(same_color(ring.progressLayer().strokeColor(), green()));
  EXPECT_TRUE(ring.layer().needsDisplay());
}

TEST_F(RingLayout, SettingAWidthRequestsDrawing) {
  const auto ring = ring_of(40);
  ASSERT_FALSE(ring.layer().needsDisplay());

  ring.setBackgroundRingWidth(2);
  EXPECT_TRUE(ring.layer().needsDisplay());

  show(ring);
  ring.setProgressRingWidth(4);
  EXPECT_TRUE(ring.layer().needsDisplay());
}

TEST_F(RingLayout, ThePercentageFollowsItsSwitch) {
  const auto ring = ring_of(40);
  const UILabel label = ring.percentageLabel();
  ASSERT_EQ(label.superview(), ring);

  ring.setShowPercentage(NO);
  EXPECT_FALSE(ring.showPercentage());
  EXPECT_FALSE(label.superview());
  EXPECT_TRUE(ring.layer().needsLayout());

  ring.setShowPercentage(YES);
  EXPECT_TRUE(ring.showPercentage());
  EXPECT_EQ(label.superview(), ring);

  ring.setShowPercentage(YES);
  EXPECT_EQ(ring.subviews().count(), 1u);
}

TEST_F(RingLayout, AReleasedRingReleasesItsLayers) {
  objc::Ref<CAShapeLayer> layer;
  {
    const objc::AutoreleasePool pool;
    const auto ring = M13ProgressViewRing::alloc().initWithFrame({0, 0, 40, 40});
    show(ring);
    layer.reset(ring.progressLayer());
    ring.release();
  }
  EXPECT_EQ(layer->retainCount(), 1u);
}

}  // namespace
}  // namespace sonavue::test
