#include "host/quartzcore/drawing/context.h"
#include "host/quartzcore/kinds/backdrop_layer.h"
#include "platform/CoreGraphics/CGPath.h"
#include "platform/QuartzCore/CAShapeLayer.h"
#include "tests/host/quartzcore/compositor_fixture.h"

namespace host::test {
namespace {

using quartzcore::Compositor;
using quartzcore::PixelRect;

TEST_F(CompositorTest, LayersArePaintedInTheirOrderAtTheirPlaces) {
  add({2, 2, 3, 3}, color(1, 0, 0));
  add({4, 4, 2, 2}, color(0, 1, 0));
  render();
  EXPECT_EQ(pixel(0, 0), kBlue);
  EXPECT_EQ(pixel(2, 2), kRed);
  EXPECT_EQ(pixel(4, 4), 0xff00ff00);
  EXPECT_EQ(pixel(5, 5), 0xff00ff00);
  EXPECT_EQ(pixel(6, 6), kBlue);
}

TEST_F(CompositorTest, APatternIsTiledFromTheLayersCorner) {
  const CGImageRef red = image_of_color(1, 1, kRed);
  const CGImageRef green = image_of_color(1, 1, 0xff00ff00);
  const auto tile = quartzcore::make_surface(2, 1);
  const auto drawing = quartzcore::draw_on(tile);
  quartzcore::draw_image(drawing.get(), *quartzcore::image_of(red), {0, 0, 1, 1}, 1);
  quartzcore::draw_image(drawing.get(), *quartzcore::image_of(green), {1, 0, 1, 1}, 1);
  const CGImageRef picture = quartzcore::make_image(tile, quartzcore::Opacity::Opaque);
  const CGColorRef pattern = quartzcore::make_pattern_color(picture, 1);
  const CALayer layer = add({1, 1, 4, 4}, pattern);
  render();
  EXPECT_EQ(pixel(0, 1), kBlue);
  EXPECT_EQ(pixel(1, 1), kRed);
  EXPECT_EQ(pixel(2, 1), 0xff00ff00);
  EXPECT_EQ(pixel(3, 4), kRed);
  EXPECT_EQ(pixel(5, 1), kBlue);

  const CGColorRef plain = quartzcore::make_color(quartzcore::rgba_of(pattern));
  layer.setBackgroundColor(plain);
  EXPECT_FALSE(render().empty()) << "a pattern is not its mean";
  EXPECT_EQ(pixel(1, 1), pixel(2, 1));
  CGColorRelease(plain);
  CGColorRelease(pattern);
  CGImageRelease(picture);
}

TEST_F(CompositorTest, AFrameWithNothingChangedPaintsNothing) {
  render();
  const auto painted = compositor.painted_pixels();
  EXPECT_TRUE(render().empty());
  root.setBackgroundColor(color(0, 0, 1));
  EXPECT_TRUE(render().empty());
  EXPECT_EQ(compositor.painted_pixels(), painted);
  EXPECT_EQ(compositor.frame_count(), 1u);
}

TEST_F(CompositorTest, OnlyTheOldAndTheNewPlaceOfAMovedLayerArePainted) {
  const CALayer moving = add({0, 0, 2, 2}, color(1, 0, 0));
  render();
  moving.setPosition({6, 6});
  const auto damage = render();
  EXPECT_EQ(damage, (quartzcore::Damage{PixelRect{0, 0, 2, 2}, PixelRect{5, 5, 2, 2}}));
  EXPECT_EQ(pixel(0, 0), kBlue);
  EXPECT_EQ(pixel(5, 5), kRed);
}

TEST_F(CompositorTest, AddingRemovingHidingAndReorderingRepaintTheirPlaces) {
  const CALayer red = add({0, 0, 4, 4}, color(1, 0, 0));
  const CALayer green = add({2, 2, 4, 4}, color(0, 1, 0));
  render();
  root.addSublayer(red);
  EXPECT_FALSE(render().empty());
  EXPECT_EQ(pixel(3, 3), kRed);
  red.setHidden(YES);
  EXPECT_EQ(render(), (quartzcore::Damage{PixelRect{0, 0, 4, 4}}));
  EXPECT_EQ(pixel(0, 0), kBlue);
  EXPECT_EQ(pixel(3, 3), 0xff00ff00);
  green.removeFromSuperlayer();
  EXPECT_EQ(render(), (quartzcore::Damage{PixelRect{2, 2, 4, 4}}));
  EXPECT_EQ(pixel(3, 3), kBlue);
}

TEST_F(CompositorTest, OpacityBlendsAGroupAsAWhole) {
  const CALayer group = add({0, 0, 4, 4}, color(1, 0, 0));
  const CALayer inside = layer_at({0, 0, 4, 4});
  inside.setBackgroundColor(color(0, 1, 0));
  group.addSublayer(inside);
  group.setOpacity(0.5);
  render();
  // Half of the green above and half of the blue below; nothing of the red between them.
  EXPECT_EQ(pixel(1, 1) >> 16 & 0xff, 0u);
  EXPECT_NEAR(pixel(1, 1) >> 8 & 0xff, 128, 1);
  EXPECT_NEAR(pixel(1, 1) & 0xff, 127, 1);
}

TEST_F(CompositorTest, AFadingGroupIsDrawnOnceAndOnlyBlendedAfterwards) {
  const CALayer group = add({0, 0, 4, 4}, color(1, 0, 0));
  const CALayer inside = layer_at({2, 2, 2, 2});
  inside.setBackgroundColor(color(0, 1, 0));
  group.addSublayer(inside);
  for (float opacity : {0.2f, 0.4f, 0.6f}) {
    group.setOpacity(opacity);
    render();
  }
  EXPECT_EQ(compositor.group_count(), 1u);
  EXPECT_NEAR(pixel(1, 1) >> 16 & 0xff, 153, 1);
}

TEST_F(CompositorTest, AFadedGroupKeepsToTheRoundCornersAroundIt) {
  const CALayer clip = add({0, 0, 8, 8}, color(1, 0, 0));
  clip.setMasksToBounds(YES);
  clip.setCornerRadius(4);
  const CALayer group = layer_at({0, 0, 8, 8});
  group.setBackgroundColor(color(1, 0, 0));
  const CALayer inside = layer_at({0, 0, 8, 8});
  inside.setBackgroundColor(color(0, 1, 0));
  group.addSublayer(inside);
  group.setOpacity(0.5);
  clip.addSublayer(group);
  render();
  EXPECT_EQ(pixel(0, 0), kBlue);
  EXPECT_NEAR(pixel(4, 4) >> 8 & 0xff, 128, 1);
}

TEST_F(CompositorTest, AFadedGroupShowsNothingBesideItsMask) {
  const CALayer group = add({0, 0, 8, 8}, color(1, 0, 0));
  const CALayer inside = layer_at({0, 0, 8, 8});
  inside.setBackgroundColor(color(0, 1, 0));
  group.addSublayer(inside);
  const CALayer mask = layer_at({4, 0, 4, 8});
  mask.setBackgroundColor(color(0, 0, 0));
  group.setMask(mask);
  group.setOpacity(0.5);
  render();
  EXPECT_EQ(pixel(1, 1), kBlue);
  EXPECT_NEAR(pixel(6, 6) >> 8 & 0xff, 128, 1);
}

TEST_F(CompositorTest, AGroupThatFillsItsPlaceIsBlendedOnlyWhereSomethingChanged) {
  const CALayer group = add({1, 1, 6, 6}, color(1, 0, 0));
  const CALayer inside = layer_at({0, 0, 6, 6});
  inside.setBackgroundColor(color(0, 1, 0));
  group.addSublayer(inside);
  group.setOpacity(0.5);
  render();
  const CALayer below = layer_at({0, 0, 3, 3});
  below.setBackgroundColor(color(0, 0, 0));
  root.insertSublayerAtIndex(below, 0);
  render();
  // Blended once, whether painted again or not.
  EXPECT_NEAR(pixel(2, 2) >> 8 & 0xff, 128, 1);
  EXPECT_EQ(pixel(2, 2) & 0xff, 0u);
  EXPECT_NEAR(pixel(5, 5) >> 8 & 0xff, 128, 1);
  EXPECT_NEAR(pixel(5, 5) & 0xff, 127, 1);
  EXPECT_EQ(pixel(0, 0), kBlack);
  EXPECT_EQ(pixel(7, 7), kBlue);
}

TEST_F(CompositorTest, ARoundClipCutsAGroupThatWouldFillItsPlace) {
  const CALayer clip = add({0, 0, 8, 8}, color(0, 0, 1));
  clip.setCornerRadius(4);
  clip.setMasksToBounds(YES);
  const CALayer group = layer_at({0, 0, 8, 8});
  clip.addSublayer(group);
  for (int i = 0; i < 2; ++i) {
    const CALayer inside = layer_at({0, 0, 8, 8});
    inside.setBackgroundColor(color(1, 0, 0));
    group.addSublayer(inside);
  }
  group.setOpacity(0.5);
  render();
  EXPECT_NEAR(pixel(4, 4) >> 16 & 0xff, 128, 1);
  EXPECT_EQ(pixel(0, 0), kBlue);
}

TEST_F(CompositorTest, AFadingTreeWithOneDrawingNeedsNoGroup) {
  const CALayer holder = layer_at({0, 0, 4, 4});
  root.addSublayer(holder);
  const CALayer inside = layer_at({1, 1, 2, 2});
  inside.setBackgroundColor(color(1, 0, 0));
  inside.setOpacity(0.5);
  holder.addSublayer(inside);
  holder.setOpacity(0.5);
  render();
  EXPECT_EQ(compositor.group_count(), 0u);
  EXPECT_NEAR(pixel(1, 1) >> 16 & 0xff, 64, 1);
  EXPECT_NEAR(pixel(1, 1) & 0xff, 191, 1);
  EXPECT_EQ(pixel(0, 0), kBlue);
}

TEST_F(CompositorTest, ALayerThatMasksCutsItsSublayersAndOneThatDoesNotLetsThemOut) {
  const CALayer clip = layer_at({0, 0, 4, 4});
  root.addSublayer(clip);
  const CALayer inside = layer_at({2, 2, 6, 6});
  inside.setBackgroundColor(color(1, 0, 0));
  clip.addSublayer(inside);
  render();
  EXPECT_EQ(pixel(6, 6), kRed);
  clip.setMasksToBounds(YES);
  render();
  EXPECT_EQ(pixel(3, 3), kRed);
  EXPECT_EQ(pixel(6, 6), kBlue);
}

TEST_F(CompositorTest, RoundedCornersAreCutAway) {
  const CALayer clip = layer_at({0, 0, 8, 8});
  clip.setMasksToBounds(YES);
  clip.setCornerRadius(4);
  root.addSublayer(clip);
  const CALayer inside = layer_at({0, 0, 8, 8});
  inside.setBackgroundColor(color(1, 0, 0));
  clip.addSublayer(inside);
  render();
  EXPECT_EQ(pixel(0, 0), kBlue);
  EXPECT_EQ(pixel(4, 4), kRed);
  EXPECT_EQ(pixel(4, 0) >> 24, 0xffu);
}

TEST_F(CompositorTest, ScrolledBoundsMoveTheSublayers) {
  const CALayer inside = add({2, 2, 2, 2}, color(1, 0, 0));
  render();
  root.setBounds({2, 2, 8, 8});
  render();
  EXPECT_EQ(pixel(0, 0), kRed);
  EXPECT_EQ(pixel(2, 2), kBlue);
  EXPECT_EQ(inside.position(), (CGPoint{3, 3}));
}

TEST_F(CompositorTest, ContentsFollowTheirGravity) {
  const CALayer layer = layer_at({0, 0, 8, 4});
  layer.setContents(image_of_color(2, 2, kRed));
  root.addSublayer(layer);
  render();
  EXPECT_EQ(pixel(7, 3), kRed);
  layer.setContentsGravity("resizeAspect"_ns);
  render();
  EXPECT_EQ(pixel(1, 1), kBlue);
  EXPECT_EQ(pixel(2, 1), kRed);
  EXPECT_EQ(pixel(6, 1), kBlue);
  layer.setContentsGravity("center"_ns);
  render();
  EXPECT_EQ(pixel(3, 1), kRed);
  EXPECT_EQ(pixel(2, 1), kBlue);
}

TEST_F(CompositorTest, AnimationsArePaintedWithTheirPresentationAndRestAfterwards) {
  const CALayer moving = add({0, 0, 2, 2}, color(1, 0, 0));
  render();
  const auto animation = CABasicAnimation::animationWithKeyPath("position"_ns);
  animation.setFromValue(CAValue::valueWithCGPoint({1, 1}));
  animation.setToValue(CAValue::valueWithCGPoint({7, 1}));
  animation.setDuration(1);
  moving.addAnimation(animation, "move"_ns);
  advance(0.5);
  render();
  EXPECT_EQ(pixel(3, 0), kRed);
  EXPECT_EQ(pixel(0, 0), kBlue);
  advance(1);
  EXPECT_FALSE(render().empty());
  EXPECT_EQ(pixel(0, 0), kRed);
  EXPECT_TRUE(render().empty());
}

TEST_F(CompositorTest, AMaskLetsThroughItsOwnAlpha) {
  const CALayer layer = add({0, 0, 8, 8}, color(1, 0, 0));
  const CALayer mask = layer_at({0, 0, 4, 8});
  mask.setBackgroundColor(color(0, 0, 0, 1));
  layer.setMask(mask);
  render();
  EXPECT_EQ(pixel(1, 1), kRed);
  EXPECT_EQ(pixel(6, 1), kBlue);
  layer.setMask(nil);
  render();
  EXPECT_EQ(pixel(6, 1), kRed);
}

TEST_F(CompositorTest, AShapeMayReachBeyondItsLayer) {
  const CAShapeLayer shape = CAShapeLayer::layer();
  shape.setFrame({0, 0, 1, 1});
  CGPathRef path = CGPathCreateWithRect({2, 2, 4, 4}, nullptr);
  shape.setPath(path);
  CGPathRelease(path);
  shape.setFillColor(color(1, 0, 0));
  root.addSublayer(shape);
  render();
  EXPECT_EQ(pixel(5, 5), kRed);
  EXPECT_EQ(pixel(6, 6), kBlue);
  shape.setPath(nullptr);
  render();
  EXPECT_EQ(pixel(5, 5), kBlue);
}

TEST_F(CompositorTest, ABackdropBlursWhatIsBehindItAndOnlyWhenThatChanges) {
  const CALayer behind = add({0, 0, 4, 8}, color(1, 0, 0));
  const CABackdropLayer backdrop = CABackdropLayer::layer();
  backdrop.setFrame({0, 0, 8, 8});
  objc::state_of<quartzcore::BackdropLayer>(backdrop).show({.blur_radius = 4});
  root.addSublayer(backdrop);
  const CALayer above = add({0, 0, 1, 1}, color(0, 1, 0));
  render();
  EXPECT_EQ(compositor.blur_count(), 1u);
  EXPECT_GT(pixel(4, 4) >> 16 & 0xff, 20u);
  EXPECT_LT(pixel(3, 4) >> 16 & 0xff, 235u);
  const auto blurred = pixel(6, 6);
  above.setPosition({6.5, 6.5});
  render();
  EXPECT_EQ(pixel(6, 6), 0xff00ff00);
  above.setPosition({1.5, 1.5});
  render();
  EXPECT_EQ(compositor.blur_count(), 1u);
  EXPECT_EQ(pixel(6, 6), blurred);
  behind.setHidden(YES);
  render();
  EXPECT_EQ(compositor.blur_count(), 2u);
  EXPECT_EQ(pixel(3, 4), kBlue);
}

TEST_F(CompositorTest, AFadingPanelWithOpaqueArtworkBlursOnceWhateverMovesBehindIt) {
  const CALayer moving = add({0, 0, 2, 2}, color(0, 1, 0));
  const CALayer cover = layer_at({0, 0, 8, 8});
  cover.setContents(image_of_color(8, 8, kRed));
  cover.setMasksToBounds(YES);
  root.addSublayer(cover);
  const CABackdropLayer backdrop = CABackdropLayer::layer();
  backdrop.setFrame({0, 0, 8, 8});
  cover.addSublayer(backdrop);
  for (int i = 1; i <= 4; ++i) {
    cover.setOpacity(0.25f * static_cast<float>(i));
    moving.setPosition({1.0 + i, 1});
    render();
  }
  EXPECT_EQ(compositor.blur_count(), 1u);
  EXPECT_EQ(pixel(4, 4), kRed);
}

TEST_F(CompositorTest, ABackdropInAFadingGroupSeesThroughToWhatIsBehindTheGroup) {
  const CALayer cover = layer_at({0, 0, 8, 8});
  root.addSublayer(cover);
  const CABackdropLayer backdrop = CABackdropLayer::layer();
  backdrop.setFrame({0, 0, 8, 8});
  objc::state_of<quartzcore::BackdropLayer>(backdrop).show({.tint = {1, 0, 0, 0.5}});
  cover.addSublayer(backdrop);
  cover.setOpacity(0.5);
  render();
  EXPECT_NEAR(pixel(4, 4) >> 16 & 0xff, 64, 2);
  EXPECT_NEAR(pixel(4, 4) & 0xff, 191, 2);
}

TEST_F(CompositorTest, WhatIsOutsideEveryLayerIsBlack) {
  root.setFrame({0, 0, 4, 8});
  render();
  EXPECT_EQ(pixel(6, 6), kBlack);
}

}  // namespace
}  // namespace host::test
