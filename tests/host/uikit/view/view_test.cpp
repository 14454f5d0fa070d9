#include "host/uikit/view/view.h"

#include "platform/CoreGraphics/CGContext.h"
#include "tests/host/uikit/support/recording_view.h"

namespace host::test {
namespace {

using ViewTest = UIKitTest;

int times_drawn = 0;
CGRect drawn_rect;

void draw_rect(UIView, CGRect rect) {
  ++times_drawn;
  drawn_rect = rect;
}

UIView make_drawing_view(CGRect frame) {
  if (!objc_getClass("TestDrawingView"))
    objc::ClassBuilder("TestDrawingView", "UIView").method<&draw_rect>("drawRect:").finish();
  const objc::Object cls(objc_getClass("TestDrawingView"));
  return objc::send<UIView>(cls, "alloc"_sel).initWithFrame(frame).autorelease();
}

TEST_F(ViewTest, FrameIsComputedFromCentreBoundsAndTransform) {
  const UIView view = add_view({10, 20, 100, 50});
  EXPECT_EQ(view.center(), (CGPoint{60, 45}));
  EXPECT_EQ(view.bounds(), CGRect(0, 0, 100, 50));
  view.setTransform({2, 0, 0, 2, 0, 0});
  EXPECT_EQ(view.frame(), CGRect(-40, -5, 200, 100));
  EXPECT_EQ(view.bounds(), CGRect(0, 0, 100, 50));
}

TEST_F(ViewTest, SettingTheFrameKeepsTheOriginOfTheBounds) {
  const UIView view = add_view({0, 0, 100, 100});
  view.setBounds({30, 40, 100, 100});
  view.setFrame({5, 6, 200, 80});
  EXPECT_EQ(view.bounds(), CGRect(30, 40, 200, 80));
  EXPECT_EQ(view.frame(), CGRect(5, 6, 200, 80));
}

TEST_F(ViewTest, AlphaIsTheLayersOpacityWithinItsRange) {
  const UIView view = add_view({0, 0, 10, 10});
  view.setAlpha(0.25);
  EXPECT_EQ(view.alpha(), 0.25);
  EXPECT_EQ(view.layer().opacity(), 0.25f);
  view.setAlpha(-0.25);
  EXPECT_EQ(view.alpha(), 0);
  view.setAlpha(1.5);
  EXPECT_EQ(view.alpha(), 1);
}

TEST_F(ViewTest, AViewWithoutDrawingNeverGetsContents) {
  const UIView view = add_view({0, 0, 100, 100});
  view.setNeedsDisplay();
  advance(0.1);
  EXPECT_FALSE(view.layer().contents());
}

TEST_F(ViewTest, AViewThatDrawsIsDrawnOncePerTurn) {
  times_drawn = 0;
  const UIView view = make_drawing_view({10, 10, 40, 30});
  window.addSubview(view);
  view.setNeedsDisplay();
  view.setNeedsDisplay();
  advance(0.1);
  EXPECT_EQ(times_drawn, 1);
  EXPECT_EQ(drawn_rect, CGRect(0, 0, 40, 30));
  EXPECT_TRUE(view.layer().contents());
}

TEST_F(ViewTest, ContentModeChoosesTheLayersGravity) {
  const UIView view = add_view({0, 0, 10, 10});
  EXPECT_STREQ(view.layer().contentsGravity().UTF8String(), "resize");
  view.setContentMode(UIViewContentModeScaleAspectFill);
  EXPECT_STREQ(view.layer().contentsGravity().UTF8String(), "resizeAspectFill");
  view.setContentMode(UIViewContentModeTop);
  EXPECT_STREQ(view.layer().contentsGravity().UTF8String(), "bottom");
}

TEST_F(ViewTest, TintIsInheritedUntilItIsSet) {
  const UIView outer = add_view({0, 0, 100, 100});
  const auto inner = RecordingView::make("inner", {0, 0, 10, 10});
  outer.addSubview(inner);
  told();
  outer.setTintColor(UIColor::redColor());
  EXPECT_TRUE(inner.tintColor().isEqual(UIColor::redColor()));
  EXPECT_EQ(told(), Events{"inner tint"});
  inner.setTintColor(UIColor::greenColor());
  EXPECT_EQ(told(), Events{"inner tint"});
  outer.setTintColor(UIColor::blueColor());
  EXPECT_EQ(told(), Events{}) << "a view with its own tint is not affected";
  EXPECT_TRUE(inner.tintColor().isEqual(UIColor::greenColor()));
}

TEST_F(ViewTest, PointsConvertThroughTransformsAndScrolledBounds) {
  const UIView outer = add_view({100, 100, 200, 200});
  outer.setBounds({0, 50, 200, 200});
  const UIView inner = UIView::alloc().initWithFrame({10, 60, 20, 20}).autorelease();
  outer.addSubview(inner);
  EXPECT_EQ(inner.convertPointToView({0, 0}, nil), (CGPoint{110, 110}));
  EXPECT_EQ(inner.convertPointFromView({115, 112}, window), (CGPoint{5, 2}));
  inner.setTransform({0, 1, -1, 0, 0, 0});
  const CGPoint corner = inner.convertPointToView({0, 0}, outer);
  EXPECT_NEAR(corner.x, 30, 1e-9);
  EXPECT_NEAR(corner.y, 60, 1e-9);
  EXPECT_EQ(inner.convertRectToView({0, 0, 20, 20}, outer), CGRect(10, 60, 20, 20));
}

TEST_F(ViewTest, PointsConvertBetweenWindowsThroughTheScreen) {
  const UIWindow other = UIWindow::alloc().initWithFrame({0, -100, 375, 667}).autorelease();
  EXPECT_EQ(other.convertPointFromView({10, 20}, window), (CGPoint{10, 120}));
}

TEST_F(ViewTest, HitTestFindsTheTopmostThatTakesTouches) {
  const UIView below = add_view({0, 0, 100, 100});
  const UIView above = add_view({50, 0, 100, 100});
  EXPECT_EQ(window.hitTest({60, 10}, nil), above);
  above.setAlpha(0.005);
  EXPECT_EQ(window.hitTest({60, 10}, nil), below);
  above.setAlpha(1);
  above.setHidden(YES);
  EXPECT_EQ(window.hitTest({60, 10}, nil), below);
  above.setHidden(NO);
  above.setUserInteractionEnabled(NO);
  EXPECT_EQ(window.hitTest({60, 10}, nil), below);
  EXPECT_EQ(window.hitTest({10, 300}, nil), window);
  EXPECT_FALSE(window.hitTest({-1, 300}, nil));
}

TEST_F(ViewTest, SizeToFitKeepsTheTopLeftCorner) {
  const UIView view = add_view({10, 20, 100, 50});
  view.sizeToFit();
  EXPECT_EQ(view.frame(), CGRect(10, 20, 100, 50));
}

}  // namespace
}  // namespace host::test
