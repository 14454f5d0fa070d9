#include "tests/host/quartzcore/quartz_test.h"

namespace host::test {
namespace {

using LayerTest = QuartzTest;

TEST_F(LayerTest, FrameIsComputedFromPositionBoundsAnchorAndTransform) {
  const CALayer layer = CALayer::layer();
  layer.setBounds({0, 0, 100, 50});
  layer.setPosition({200, 100});
  EXPECT_EQ(layer.frame(), CGRect(150, 75, 100, 50));
  layer.setAnchorPoint({0, 0});
  EXPECT_EQ(layer.frame(), CGRect(200, 100, 100, 50));
  layer.setAffineTransform({2, 0, 0, 2, 5, 0});
  EXPECT_EQ(layer.frame(), CGRect(205, 100, 200, 100));
}

TEST_F(LayerTest, SettingTheFrameKeepsTheBoundsOrigin) {
  const CALayer layer = layer_at({0, 0, 100, 100});
  layer.setBounds({7, 30, 100, 100});
  layer.setFrame({10, 20, 60, 40});
  EXPECT_EQ(layer.bounds(), CGRect(7, 30, 60, 40));
  EXPECT_EQ(layer.frame(), CGRect(10, 20, 60, 40));
  EXPECT_EQ(layer.position(), (CGPoint{40, 40}));
}

TEST_F(LayerTest, SettingTheFrameOfAScaledLayerGivesThatFrame) {
  const CALayer layer = layer_at({0, 0, 100, 100});
  layer.setAffineTransform({2, 0, 0, 0.5, 3, 4});
  layer.setFrame({10, 20, 60, 40});
  EXPECT_EQ(layer.frame(), CGRect(10, 20, 60, 40));
  EXPECT_EQ(layer.bounds().size, (CGSize{30, 80}));
}

TEST_F(LayerTest, MovingByTheFrameDoesNotChangeTheBounds) {
  const CGRect place{0, 0, 640.0 / 3, 480.0 / 7};
  const CALayer layer = layer_at(place);
  for (int step = 0; step < 100; ++step) {
    const CGSize size = layer.frame().size;
    layer.setFrame({step * 0.7, step / 3.0, size.width, size.height});
    ASSERT_EQ(layer.bounds().size, place.size);
  }
}

TEST_F(LayerTest, SublayersKeepTheOrderInWhichTheyWereInserted) {
  const CALayer parent = CALayer::layer();
  const CALayer a = CALayer::layer(), b = CALayer::layer(), c = CALayer::layer();
  parent.addSublayer(a);
  parent.insertSublayerAtIndex(b, 0);
  parent.insertSublayerAbove(c, b);
  const auto order = [&] {
    std::vector<CALayer> layers;
    for (CALayer layer : parent.sublayers().of<CALayer>())
      layers.push_back(layer);
    return layers;
  };
  EXPECT_EQ(order(), (std::vector{b, c, a}));
  parent.insertSublayerBelow(a, c);
  EXPECT_EQ(order(), (std::vector{b, a, c}));
  parent.addSublayer(b);
  EXPECT_EQ(order(), (std::vector{a, c, b}));
  parent.insertSublayerAtIndex(b, 1);
  EXPECT_EQ(order(), (std::vector{a, b, c}));
  b.removeFromSuperlayer();
  EXPECT_EQ(order(), (std::vector{a, c}));
  EXPECT_FALSE(b.superlayer());
}

TEST_F(LayerTest, ASuperlayerOwnsItsSublayersAndTheyForgetItWhenItIsDestroyed) {
  CALayer parent = CALayer::alloc().init();
  CALayer child = CALayer::alloc().init();
  parent.addSublayer(child);
  EXPECT_EQ(child.retainCount(), 2u);
  parent.release();
  EXPECT_EQ(child.retainCount(), 1u);
  EXPECT_FALSE(child.superlayer());
  child.release();
}

TEST_F(LayerTest, PointsConvertThroughScrolledAndScaledLayers) {
  const CALayer root = layer_at({0, 0, 300, 300});
  const CALayer scrolled = layer_at({10, 20, 100, 100});
  scrolled.setBounds({0, 50, 100, 100});
  const CALayer child = layer_at({5, 60, 10, 10});
  root.addSublayer(scrolled);
  scrolled.addSublayer(child);
  EXPECT_EQ(child.convertPointToLayer({1, 1}, root), (CGPoint{16, 31}));
  EXPECT_EQ(child.convertPointFromLayer({16, 31}, root), (CGPoint{1, 1}));
  child.setAffineTransform({2, 0, 0, 2, 0, 0});
  EXPECT_EQ(root.convertRectFromLayer({0, 0, 10, 10}, child), CGRect(10, 25, 20, 20));
}

TEST_F(LayerTest, HitTestFindsTheTopmostVisibleLayerUnderThePoint) {
  const CALayer root = layer_at({0, 0, 100, 100});
  const CALayer below = layer_at({0, 0, 50, 50});
  const CALayer above = layer_at({25, 25, 50, 50});
  root.addSublayer(below);
  root.addSublayer(above);
  EXPECT_EQ(root.hitTest({30, 30}), above);
  EXPECT_EQ(root.hitTest({10, 10}), below);
  above.setHidden(YES);
  EXPECT_EQ(root.hitTest({30, 30}), below);
  EXPECT_EQ(root.hitTest({90, 10}), root);
  EXPECT_FALSE(root.hitTest({110, 10}));
}

int drawings = 0;
int layouts = 0;
void draw_layer(objc::Object, CALayer, CGContextRef) {
  ++drawings;
}
void lay_out(objc::Object, CALayer) {
  ++layouts;
}

objc::Object make_delegate(const char* name, bool draws) {
  if (!objc_getClass(name)) {
    objc::ClassBuilder builder(name, "NSObject");
    builder.method<&lay_out>("layoutSublayersOfLayer:");
    if (draws) builder.method<&draw_layer>("drawLayer:inContext:");
    builder.finish();
  }
  const objc::Object cls{objc_getClass(name)};
  return objc::send<NSObject>(objc::send<NSObject>(cls, "alloc"_sel), "init"_sel).autorelease();
}

TEST_F(LayerTest, ALayerWithoutDrawingCodeAllocatesNoBackingStore) {
  const CALayer plain = layer_at({0, 0, 10, 10});
  plain.setDelegate(make_delegate("TestQuietDelegate", false));
  plain.setNeedsDisplay();
  advance(0);
  plain.displayIfNeeded();
  EXPECT_FALSE(plain.needsDisplay());
  EXPECT_FALSE(plain.contents());
}

TEST_F(LayerTest, ADrawnLayerIsDrawnOnceAtTheEndOfTheTurn) {
  const CALayer layer = layer_at({0, 0, 10, 10});
  layer.setDelegate(make_delegate("TestDrawingDelegate", true));
  drawings = 0;
  loop.perform([&] {
    layer.setNeedsDisplay();
    layer.setNeedsDisplay();
    EXPECT_EQ(drawings, 0);
  });
  loop.run_ready();
  EXPECT_EQ(drawings, 1);
  EXPECT_TRUE(layer.contents());
  loop.perform([] {});
  loop.run_ready();
  EXPECT_EQ(drawings, 1);
}

TEST_F(LayerTest, MovingTheBoundsLaysOutTheLayerItselfAndNotItsSuperlayer) {
  const CALayer parent = layer_at({0, 0, 100, 100});
  const CALayer child = layer_at({0, 0, 50, 50});
  parent.addSublayer(child);
  parent.layoutIfNeeded();
  parent.setDelegate(make_delegate("TestQuietDelegate", false));
  layouts = 0;
  child.setBounds({0, 10, 50, 50});
  EXPECT_TRUE(child.needsLayout());
  EXPECT_FALSE(parent.needsLayout());
  loop.perform([] {});
  loop.run_ready();
  EXPECT_FALSE(child.needsLayout());
  EXPECT_EQ(layouts, 0);
}

TEST_F(LayerTest, LayoutIfNeededStartsAtTheTopmostMarkedLayer) {
  const CALayer parent = layer_at({0, 0, 100, 100});
  const CALayer child = layer_at({0, 0, 50, 50});
  parent.addSublayer(child);
  parent.setDelegate(make_delegate("TestQuietDelegate", false));
  layouts = 0;
  child.layoutIfNeeded();
  EXPECT_EQ(layouts, 1);
  EXPECT_FALSE(parent.needsLayout());
}

TEST_F(LayerTest, GeometryPartsAreReadAndSetByKeyPath) {
  const CALayer layer = layer_at({0, 0, 10, 10});
  layer.setValueForKeyPath(NSNumber::numberWithDouble(42), "position.y"_ns);
  EXPECT_EQ(layer.position(), (CGPoint{5, 42}));
  layer.setValueForKeyPath(NSNumber::numberWithDouble(3), "transform.scale"_ns);
  EXPECT_NEAR(layer.affineTransform().a, 3, 1e-12);
  EXPECT_NEAR(objc::cast<NSNumber>(layer.valueForKeyPath("transform.scale.y"_ns)).doubleValue(), 3,
              1e-12);
}

}  // namespace
}  // namespace host::test
