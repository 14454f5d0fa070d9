#include "host/uikit/scroll/wheel.h"

#include "tests/host/uikit/scroll/scroll_view_fixture.h"

namespace {

using host::test::ScrollViewTest;
using host::uikit::turn_wheel;
using host::uikit::WheelKind;
using Strings = std::vector<std::string>;

constexpr CGPoint kMiddle{187, 333};
constexpr double kTwoFrames = 2.0 / 60 + 1e-6;

bool notch(double across, double down) {
  return turn_wheel(kMiddle, {across, down}, WheelKind::Notched);
}
bool slide(double across, double down) {
  return turn_wheel(kMiddle, {across, down}, WheelKind::Precise);
}

TEST_F(ScrollViewTest, ANotchMovesTheContentByItsLength) {
  EXPECT_TRUE(notch(0, 1));
  advance(1);
  EXPECT_EQ(y(), 50);
  EXPECT_TRUE(notch(0, -1));
  advance(1);
  EXPECT_EQ(y(), 0);
}

TEST_F(ScrollViewTest, TheFirstPixelMovesWithinTwoFramesOfANotch) {
  notch(0, 1);
  advance(kTwoFrames);
  EXPECT_GE(y(), 1);
}

TEST_F(ScrollViewTest, QuickNotchesAddUp) {
  for (int i = 0; i < 4; ++i) {
    notch(0, 1);
    advance(0.05);
  }
  advance(1);
  EXPECT_EQ(y(), 200);
}

TEST_F(ScrollViewTest, TheWheelStopsAtTheEdgesWithoutPullingThem) {
  scroll.setContentInset({64, 0, 20, 0});
  EXPECT_FALSE(notch(0, -1));
  EXPECT_TRUE(slide(0, 10000));
  EXPECT_EQ(y(), 4000 + 20 - 667);
  EXPECT_FALSE(slide(0, 10));
  advance(1);
  EXPECT_EQ(y(), 4000 + 20 - 667);
  notch(0, -1000);
  advance(1);
  EXPECT_EQ(y(), -64);
}

TEST_F(ScrollViewTest, ATouchpadMovesTheContentAtOnceAndLosesNoFraction) {
  slide(0, 20.25);
  EXPECT_NEAR(y(), 20.25, 0.5);
  for (int i = 0; i < 8; ++i)
    slide(0, 0.1);
  EXPECT_NEAR(y(), 21.05, 0.5);
  for (int i = 0; i < 80; ++i)
    slide(0, 0.1);
  EXPECT_NEAR(y(), 29.05, 0.5);
}

TEST_F(ScrollViewTest, TheDelegateTakesTurnsWithoutAPauseForOneDrag) {
  notch(0, 1);
  EXPECT_EQ(scroll.isDragging(), YES);
  EXPECT_EQ(scroll.isTracking(), NO);
  advance(0.1);
  notch(0, 1);
  advance(0.2);
  slide(0, 3);
  EXPECT_EQ(milestones(), Strings{"willBeginDragging"});
  advance(1);
  EXPECT_EQ(milestones(),
            (Strings{"willBeginDragging", "willEndDragging", "didEndDragging rests"}));
  EXPECT_EQ(scroll.isDragging(), NO);
  EXPECT_GT(events().size(), milestones().size());
}

TEST_F(ScrollViewTest, ADelegateMayMoveTheContentWhenTheWheelRests) {
  heard().on_end_dragging = [](UIScrollView view) { view.setContentOffset({0, 31}, YES); };
  notch(0, 1);
  advance(2);
  EXPECT_EQ(y(), 31);
}

TEST_F(ScrollViewTest, TheWheelStopsADeceleration) {
  fling({100, 500}, {100, 300}, 0.1);
  advance(0.1);
  ASSERT_EQ(scroll.isDecelerating(), YES);
  events().clear();
  const CGFloat before = y();
  slide(0, 5);
  EXPECT_EQ(scroll.isDecelerating(), NO);
  EXPECT_NEAR(y(), before + 5, 1);
  EXPECT_EQ(milestones(), (Strings{"didEndDecelerating", "willBeginDragging"}));
  const CGFloat slid = y();
  advance(1);
  EXPECT_EQ(y(), slid);
}

TEST_F(ScrollViewTest, AFingerEndsTheRunOfTheWheelAndThenTakesPrecedence) {
  notch(0, 2);
  advance(kTwoFrames);
  press({100, 500});
  const CGFloat caught = y();
  EXPECT_LT(caught, 100);
  EXPECT_EQ(milestones().back(), "didEndDragging rests");
  notch(0, 2);
  advance(1);
  EXPECT_EQ(y(), caught);
  lift({100, 500});
}

TEST_F(ScrollViewTest, ANotchTurnsOnePage) {
  make_pages();
  notch(1, 0);
  EXPECT_EQ(milestones(), (Strings{"willBeginDragging", "willEndDragging",
                                   "didEndDragging decelerates", "willBeginDecelerating"}));
  advance(kTwoFrames);
  EXPECT_GE(scroll.contentOffset().x, 1);
  notch(1, 0);
  advance(1);
  EXPECT_EQ(scroll.contentOffset().x, 2 * 375);
  EXPECT_EQ(milestones().back(), "didEndDecelerating");
  EXPECT_FALSE(notch(1, 0));
  notch(-1, 0);
  advance(1);
  EXPECT_EQ(scroll.contentOffset().x, 375);
}

TEST_F(ScrollViewTest, ATouchpadTurnsAtMostOnePageAndNeverRestsBetweenTwo) {
  make_pages();
  slide(20, 0);
  advance(1);
  EXPECT_EQ(scroll.contentOffset().x, 0);
  slide(80, 0);
  EXPECT_EQ(scroll.contentOffset().x, 80);
  advance(1);
  EXPECT_EQ(scroll.contentOffset().x, 375);
  for (int i = 0; i < 20; ++i)
    slide(-100, 0);
  EXPECT_EQ(scroll.contentOffset().x, 0);
  advance(1);
  EXPECT_EQ(scroll.contentOffset().x, 0);
}

TEST_F(ScrollViewTest, TheWheelMovesTheInnermostViewThatCanMove) {
  make_pages();
  const auto inner = objc::adopt(UIScrollView::alloc().initWithFrame(kScreen));
  inner->setContentSize({375, 1000});
  scroll.addSubview(*inner);
  // Not quite straight, as on every touchpad.
  slide(3, 40);
  EXPECT_EQ(inner->contentOffset(), (CGPoint{0, 40}));
  EXPECT_EQ(scroll.contentOffset(), CGPoint{});
  slide(60, 4);
  EXPECT_EQ(inner->contentOffset(), (CGPoint{0, 40}));
  EXPECT_EQ(scroll.contentOffset(), (CGPoint{60, 0}));
  advance(1);
  inner->removeFromSuperview();
}

TEST_F(ScrollViewTest, AtItsEndTheInnerViewHandsTheWheelOn) {
  const auto inner = objc::adopt(UIScrollView::alloc().initWithFrame(kScreen));
  inner->setContentSize({375, 700});
  scroll.addSubview(*inner);
  slide(0, 30);
  slide(0, 30);
  EXPECT_EQ(inner->contentOffset().y, 33);
  EXPECT_EQ(y(), 0);
  slide(0, 30);
  EXPECT_EQ(y(), 30);
  inner->setScrollEnabled(NO);
  slide(0, -10);
  EXPECT_EQ(inner->contentOffset().y, 33);
  EXPECT_EQ(y(), 20);
  inner->removeFromSuperview();
}

TEST_F(ScrollViewTest, ADarkOrBusyScreenFeelsNoWheel) {
  host::uikit::set_touches_enabled(false);
  EXPECT_FALSE(notch(0, 1));
  host::uikit::set_touches_enabled(true);
  window.setUserInteractionEnabled(NO);
  EXPECT_FALSE(notch(0, 1));
  advance(1);
  EXPECT_EQ(y(), 0);
}

}  // namespace
