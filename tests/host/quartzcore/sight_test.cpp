#include <algorithm>
#include <random>

#include "host/quartzcore/layers/backing_stores.h"
#include "host/quartzcore/layers/layer.h"
#include "host/quartzcore/layers/marked_layers.h"
#include "host/quartzcore/service/backing_store_budget.h"
#include "platform/CoreGraphics/CGContext.h"
#include "platform/Foundation/NSValue.h"
#include "tests/host/quartzcore/compositor_fixture.h"

// Layers out of sight cost nothing, but are painted when they become visible.

namespace host::test {
namespace {

constexpr std::uint32_t kGreen = 0xff00ff00;
constexpr int kMany = 200;

/// A delegate that draws layers and counts its calls.
struct TestPainter : objc::Bound<TestPainter, "TestPainter", NSObject> {};

class Painter : public objc::Implementation<Painter, TestPainter> {
 public:
  explicit Painter(TestPainter owner) : Implementation(owner) {}

  int drawn = 0;
  int laid_out = 0;

  void draw(CALayer layer, CGContextRef context) {
    ++drawn;
    CGContextSetFillColorWithColor(context, CompositorTest::color(0, 1, 0));
    CGContextFillRect(context, layer.bounds());
  }
  void lay_out(CALayer) { ++laid_out; }
};

/// A viewport of four by four pixels on a column of many layers, two pixels each, red and then
/// clear.
class SightTest : public CompositorTest {
 public:
  SightTest() : list(layer_at({0, 0, 4, 4})) {
    list.setMasksToBounds(YES);
    root.addSublayer(list);
    for (int i = 0; i < kMany; ++i) {
      rows.push_back(layer_at({0, 2.0 * i, 4, 2}));
      list.addSublayer(rows.back());
    }
  }

  void draw_rows_with(TestPainter painter) {
    for (const CALayer one : rows) {
      one.setDelegate(painter);
      one.setNeedsDisplay();
    }
    quartzcore::flush_layers();
    render();
  }
  CALayer row(int i) const { return rows[static_cast<std::size_t>(i)]; }
  void scroll_to(int i) {
    CATransaction::setDisableActions(YES);
    list.setBounds({0, 2.0 * i, 4, 4});
  }
  static TestPainter make_painter() {
    if (!objc_getClass("TestPainter")) {
      objc::ClassBuilder("TestPainter", "NSObject")
          .state<Painter>()
          .method<&Painter::draw>("drawLayer:inContext:")
          .method<&Painter::lay_out>("layoutSublayersOfLayer:")
          .finish();
    }
    return TestPainter::alloc().init().autorelease();
  }
  static Painter& notes_of(TestPainter painter) { return objc::state_of<Painter>(painter); }

  const CALayer list;
  std::vector<CALayer> rows;
};

TEST_F(SightTest, AmongManyLayersTheVisibleOnesArePainted) {
  row(0).setBackgroundColor(color(1, 0, 0));
  row(150).setBackgroundColor(color(0, 1, 0));
  render();
  EXPECT_EQ(pixel(0, 0), kRed);
  EXPECT_EQ(pixel(0, 2), kBlue);
  scroll_to(150);
  render();
  EXPECT_EQ(pixel(0, 0), kGreen);
  EXPECT_EQ(pixel(0, 2), kBlue);
}

TEST_F(SightTest, ALayerThatIsMovedIntoSightIsPainted) {
  row(150).setBackgroundColor(color(1, 0, 0));
  render();
  row(150).setPosition({2, 1});
  render();
  EXPECT_EQ(pixel(0, 0), kRed);
  row(150).setTransform(CATransform3DMakeTranslation(0, 2, 0));
  render();
  EXPECT_EQ(pixel(0, 0), kBlue);
  EXPECT_EQ(pixel(0, 2), kRed);
}

TEST_F(SightTest, ALayersReachIncludesItsSublayers) {
  render();
  const CALayer inner = layer_at({0, 0, 1, 1});
  row(150).addSublayer(inner);
  const CALayer innermost = layer_at({0, -300, 4, 2});
  innermost.setBackgroundColor(color(1, 0, 0));
  inner.addSublayer(innermost);
  render();
  EXPECT_EQ(pixel(0, 0), kRed);
  inner.setPosition({0.5, 2.5});
  render();
  EXPECT_EQ(pixel(0, 0), kBlue);
  EXPECT_EQ(pixel(0, 2), kRed);
  row(150).setMasksToBounds(YES);
  render();
  EXPECT_EQ(pixel(0, 2), kBlue);
  row(150).setMasksToBounds(NO);
  innermost.setBounds({0, 0, 4, 20});
  render();
  EXPECT_EQ(pixel(0, 0), kRed);
  inner.removeFromSuperlayer();
  render();
  EXPECT_EQ(pixel(0, 0), kBlue);
}

TEST_F(SightTest, ALayerThatPassesThroughIsPaintedOnItsWay) {
  row(150).setBackgroundColor(color(1, 0, 0));
  render();
  const CABasicAnimation flight = CABasicAnimation::animationWithKeyPath("position.y"_ns);
  flight.setFromValue(NSNumber::numberWithDouble(-99));
  flight.setToValue(NSNumber::numberWithDouble(101));
  flight.setDuration(2);
  row(150).addAnimation(flight, "flight"_ns);
  advance(1);
  render();
  EXPECT_EQ(pixel(0, 0), kRed);
  advance(1.5);
  render();
  EXPECT_EQ(pixel(0, 0), kBlue);
}

TEST_F(SightTest, ManyLayersAreOrderedByTheirZPosition) {
  row(0).setBackgroundColor(color(1, 0, 0));
  row(1).setBackgroundColor(color(0, 1, 0));
  row(1).setPosition({2, 1});
  render();
  EXPECT_EQ(pixel(0, 0), kGreen);
  row(0).setZPosition(1);
  render();
  EXPECT_EQ(pixel(0, 0), kRed);
  row(1).setZPosition(2);
  render();
  EXPECT_EQ(pixel(0, 0), kGreen);
  row(0).setZPosition(0);
  row(1).setZPosition(-1);
  render();
  EXPECT_EQ(pixel(0, 0), kRed);
  row(0).setZPosition(-2);
  render();
  EXPECT_EQ(pixel(0, 0), kGreen);
  row(0).setZPosition(-0.5);
  render();
  EXPECT_EQ(pixel(0, 0), kRed);
  row(0).removeFromSuperlayer();
  render();
  EXPECT_EQ(pixel(0, 0), kGreen);
}

/// Those of the list's sublayers, in drawing order, that a picture of `place` may show.
std::vector<CALayer> within(CALayer list, CGRect place) {
  std::vector<CALayer> found;
  for (const CALayer one : list.sublayers().of<CALayer>()) {
    const CGRect frame = one.frame();
    if (frame.max_y() >= place.min_y() && frame.min_y() <= place.max_y()) found.push_back(one);
  }
  std::ranges::stable_sort(found, {}, [](CALayer one) { return one.zPosition(); });
  return found;
}

std::vector<CALayer> visited(CALayer list, CGRect place) {
  std::vector<CALayer> found;
  quartzcore::layer_of(list).reach.visit_sublayers(
      place, [&](const quartzcore::Layer& one) { found.push_back(one.handle()); });
  return found;
}

TEST_F(SightTest, AmongManyLayersOnlyThoseInSightAreVisitedWhateverChanges) {
  std::minstd_rand random(7);
  const auto any = [&random](int below) {
    return static_cast<int>(random() % static_cast<unsigned>(below));
  };
  for (int round = 0; round < 400; ++round) {
    // Now and then more than an index follows.
    for (int change = round % 20 == 0 ? 60 : any(5); change >= 0; --change) {
      const CALayer one = row(any(kMany));
      const int kind = any(6);
      if (kind == 0) one.setPosition({2, 2.0 * any(kMany) + 1});
      if (kind == 1) list.insertSublayerBelow(one, row(any(kMany)));
      if (kind == 2) list.addSublayer(one);
      if (kind == 3 && any(4) == 0) one.removeFromSuperlayer();
      if (kind == 4) one.setZPosition(round >= 200 ? any(3) - 1 : 0);
      if (kind == 5) one.setBounds({0, 0, 4, 2.0 * any(4)});
    }
    const CGRect place{0, 2.0 * any(kMany), 4, 4};
    for (int i = 0; list.sublayers().count() < 100; ++i)
      list.addSublayer(row(i));
    ASSERT_EQ(visited(list, place), within(list, place)) << round;
  }
}

TEST_F(SightTest, AmongManyLayersTheMaskIsNone) {
  render();
  // given a mask that was one of them before
  const CALayer mask = row(150);
  mask.setBackgroundColor(color(0, 0, 0));
  list.setMask(mask);
  mask.setFrame({0, 0, 4, 4});
  row(0).setBackgroundColor(color(1, 0, 0));
  render();
  EXPECT_EQ(pixel(0, 0), kRed);
  mask.setFrame({0, 1, 4, 3});
  render();
  EXPECT_EQ(pixel(0, 0), kBlue);
  EXPECT_EQ(pixel(0, 1), kRed);
}

TEST_F(SightTest, AClippedLayerIsDrawnWhenItBecomesVisible) {
  const TestPainter painter = make_painter();
  draw_rows_with(painter);
  EXPECT_LE(notes_of(painter).drawn, 3);
  EXPECT_EQ(pixel(0, 0), kGreen);
  const int before = notes_of(painter).drawn;
  scroll_to(150);
  render();
  EXPECT_EQ(pixel(0, 0), kGreen);
  EXPECT_GE(notes_of(painter).drawn, before + 2);
  EXPECT_LE(notes_of(painter).drawn, before + 3);
  const int there = notes_of(painter).drawn;
  scroll_to(151);
  scroll_to(150);
  render();
  EXPECT_EQ(notes_of(painter).drawn, there);
  for (const CALayer one : rows)
    one.setDelegate({});
}

TEST_F(SightTest, ALayerOutOfSightWaitsForDisplayAtNoCost) {
  // given layers that a turn has left marked, since they are out of sight
  const TestPainter painter = make_painter();
  draw_rows_with(painter);
  const int drawn = notes_of(painter).drawn;

  // when all are marked again
  for (const CALayer one : rows)
    one.setNeedsDisplay();

  // then the next turn looks only at those in sight, and the others are drawn when they are seen
  EXPECT_LE(quartzcore::marked_layer_count(), 3u);
  quartzcore::flush_layers();
  EXPECT_GE(notes_of(painter).drawn, drawn + 2);
  scroll_to(150);
  row(150).setNeedsDisplay();
  quartzcore::flush_layers();
  render();
  EXPECT_EQ(pixel(0, 0), kGreen);
  EXPECT_FALSE(row(150).needsDisplay());
  EXPECT_TRUE(row(100).needsDisplay());
  for (const CALayer one : rows)
    one.setDelegate({});
}

TEST_F(SightTest, PicturesOutOfSightAreReleasedBeyondTheBudgetAndDrawnAgain) {
  // given rows whose pictures take two megabytes each
  const std::size_t before = quartzcore::backing_store_bytes();
  const TestPainter painter = make_painter();
  for (const CALayer one : rows) {
    one.setDelegate(painter);
    one.setContentsScale(256);
    one.setNeedsDisplay();
  }

  // when many of them have been visible
  for (int i = 0; i < 20; ++i) {
    scroll_to(i);
    quartzcore::flush_layers();
    render();
    EXPECT_EQ(pixel(0, 0), kGreen) << i;
    EXPECT_EQ(pixel(3, 3), kGreen) << i;
  }
  quartzcore::flush_layers();

  // then the budget is kept, the visible ones are kept, and the first ones can be drawn again
  EXPECT_LE(quartzcore::backing_store_bytes(), quartzcore::kBackingStoreBudget);
  EXPECT_FALSE(row(0).contents());
  EXPECT_TRUE(row(19).contents());
  const int drawn = notes_of(painter).drawn;
  scroll_to(0);
  render();
  EXPECT_EQ(pixel(0, 0), kGreen);
  EXPECT_GE(notes_of(painter).drawn, drawn + 2);

  // and layers that have other contents, or no longer exist, do not count
  for (const CALayer one : rows) {
    one.setDelegate({});
    one.setContents({});
  }
  EXPECT_EQ(quartzcore::backing_store_bytes(), before);
}

TEST_F(SightTest, VisiblePicturesAreKeptEvenBeyondTheBudget) {
  // given three visible rows that exceed the budget
  const TestPainter painter = make_painter();
  list.setBounds({0, 0, 4, 6});
  for (int i = 0; i < 3; ++i) {
    row(i).setDelegate(painter);
    row(i).setContentsScale(1024);
    row(i).setNeedsDisplay();
  }
  quartzcore::flush_layers();
  render();
  const int drawn = notes_of(painter).drawn;
  EXPECT_GT(quartzcore::backing_store_bytes(), quartzcore::kBackingStoreBudget);

  // when some turns pass
  for (int i = 0; i < 3; ++i) {
    row(0).setOpacity(0.5f + 0.1f * static_cast<float>(i));
    quartzcore::flush_layers();
    render();
  }

  // then none of them is drawn again
  EXPECT_EQ(notes_of(painter).drawn, drawn);
  for (int i = 0; i < 3; ++i)
    row(i).setDelegate({});
}

TEST_F(SightTest, OnlyMarkedLayersAreLaidOutAmongMany) {
  quartzcore::flush_layers();
  const TestPainter painter = make_painter();
  const CALayer inner = layer_at({0, 0, 1, 1});
  row(7).addSublayer(inner);
  quartzcore::flush_layers();
  for (const CALayer one : {row(6), row(7), inner})
    one.setDelegate(painter);
  inner.setNeedsLayout();
  list.setNeedsLayout();
  list.layoutIfNeeded();
  EXPECT_EQ(notes_of(painter).laid_out, 1);
  EXPECT_FALSE(inner.needsLayout());
  row(6).setNeedsLayout();
  inner.setNeedsLayout();
  root.layoutIfNeeded();
  EXPECT_EQ(notes_of(painter).laid_out, 3);
  // Marked outside of the tree, then added to it.
  const CALayer late = layer_at({0, 0, 1, 1});
  late.setDelegate(painter);
  late.setNeedsLayout();
  inner.addSublayer(late);
  inner.layoutIfNeeded();
  root.layoutIfNeeded();
  EXPECT_EQ(notes_of(painter).laid_out, 5);
  for (const CALayer one : {row(6), row(7), inner, late})
    one.setDelegate({});
}

}  // namespace
}  // namespace host::test
