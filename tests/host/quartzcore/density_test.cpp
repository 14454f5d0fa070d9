#include "host/quartzcore/layers/screen_density.h"
#include "platform/CoreGraphics/CGContext.h"
#include "tests/host/quartzcore/compositor_fixture.h"

// A screen with fewer pixels than the device.

namespace host::test {
namespace {

using quartzcore::set_screen_density;

constexpr std::uint32_t kGreen = 0xff00ff00;

/// A delegate that draws its layer green with a red row at the top, a device's pixel high.
struct TestRowPainter : objc::Bound<TestRowPainter, "TestRowPainter", NSObject> {};

class RowPainter : public objc::Implementation<RowPainter, TestRowPainter> {
 public:
  explicit RowPainter(TestRowPainter owner) : Implementation(owner) {}

  int drawn = 0;

  void draw(CALayer layer, CGContextRef context) {
    ++drawn;
    CGContextSetFillColorWithColor(context, CompositorTest::color(0, 1, 0));
    CGContextFillRect(context, layer.bounds());
    CGContextSetFillColorWithColor(context, CompositorTest::color(1, 0, 0));
    CGContextFillRect(context, {0, 0, layer.bounds().size.width, 2});
  }
};

/// Eight pixels a side for a device of sixteen, one a point.
class Density : public CompositorTest {
 public:
  Density() { root.setFrame({0, 0, 16, 16}); }
  ~Density() override { set_screen_density(1); }

  void show_at(double density) {
    set_screen_density(density);
    screen.emplace(8, 8, density);
    render();
  }
  void render() {
    const CALayer roots[] = {root};
    screen->render(roots, loop.now());
  }
  std::uint32_t pixel(int x, int y) const { return pixel_of(*screen, x, y); }
  CALayer add_painted(CGRect frame) {
    if (!objc_getClass("TestRowPainter")) {
      objc::ClassBuilder("TestRowPainter", "NSObject")
          .state<RowPainter>()
          .method<&RowPainter::draw>("drawLayer:inContext:")
          .finish();
    }
    painter = TestRowPainter::alloc().init().autorelease();
    const CALayer layer = layer_at(frame);
    layer.setDelegate(painter);
    layer.setNeedsDisplay();
    root.addSublayer(layer);
    return layer;
  }
  int drawn() const { return objc::state_of<RowPainter>(painter).drawn; }
  static int width_of(CALayer layer) { return quartzcore::image_of(layer.contents())->width(); }

  std::optional<quartzcore::Compositor> screen;
  TestRowPainter painter;
};

TEST_F(Density, ALayerDrawsItselfAgainForEachNumberOfPixels) {
  const CALayer layer = add_painted({0, 0, 8, 8});
  show_at(1);
  EXPECT_EQ(width_of(layer), 8);
  show_at(0.5);
  EXPECT_EQ(drawn(), 2);
  EXPECT_EQ(width_of(layer), 4);
  EXPECT_EQ(layer.contentsScale(), 1);
  render();
  EXPECT_EQ(drawn(), 2);
  show_at(1);
  EXPECT_EQ(width_of(layer), 8);
}

TEST_F(Density, WhatALayerHasDrawnIsSharpAtAnyPlace) {
  const CALayer layer = add_painted({0, 0, 10, 10});
  for (const double y : {0.0, 0.7, 1.0, 1.9, 2.3}) {
    layer.setFrame({y, y, 10, 10});
    show_at(0.5);
    const int top = static_cast<int>(std::lround(y / 2));
    EXPECT_EQ(pixel(4, top), kRed) << y;
    EXPECT_EQ(pixel(4, top + 1), kGreen) << y;
    EXPECT_EQ(pixel(4, top + 3), kGreen) << y;
  }
}

TEST_F(Density, AnImageThatALayerWasGivenKeepsItsSize) {
  const CALayer layer = layer_at({0, 0, 8, 8});
  layer.setContentsGravity("topLeft"_ns);
  layer.setContents(image_of_color(4, 4, kRed));
  root.addSublayer(layer);
  show_at(0.5);
  EXPECT_EQ(pixel(1, 1), kRed);
  EXPECT_EQ(pixel(2, 2), kBlue);
}

TEST_F(Density, AHairlineHasOnePixelAtAnyPlace) {
  const CALayer line = add({0, 0, 16, 0.5}, color(1, 0, 0));
  for (const double y : {0.0, 0.5, 0.9, 1.0, 1.6, 3.1, 4.5}) {
    line.setFrame({0, y, 16, 0.5});
    show_at(0.5);
    int rows = 0;
    for (int row = 0; row < 8; ++row)
      rows += pixel(4, row) == kRed;
    EXPECT_EQ(rows, 1) << y;
  }
}

TEST_F(Density, AHairlineBelowTheScreenStaysThere) {
  add({0, 15.9, 16, 0.5}, color(1, 0, 0));
  show_at(0.5);
  EXPECT_EQ(pixel(4, 7), kBlue);
}

TEST_F(Density, TheDevicesOwnPixelsAreAsBefore) {
  add({0, 1.6, 16, 0.5}, color(1, 0, 0));
  add({0, 4.2, 16, 0.2}, color(1, 0, 0));
  show_at(1);
  EXPECT_EQ(pixel(4, 2), kBlue);
  EXPECT_EQ(pixel(4, 4), kBlue);
}

}  // namespace
}  // namespace host::test
