#include <cmath>

#include "tests/host/uikit/scroll/scroll_view_fixture.h"

namespace {

using host::test::ScrollViewTest;
using Strings = std::vector<std::string>;

TEST_F(ScrollViewTest, TheContentOffsetIsTheOriginOfTheBounds) {
  scroll.setContentOffset({0, 120});
  EXPECT_EQ(scroll.bounds(), CGRect(0, 120, 375, 667));
  scroll.setBounds({0, 77, 375, 667});
  EXPECT_EQ(scroll.contentOffset(), (CGPoint{0, 77}));
  EXPECT_EQ(scroll.frame(), kScreen);
}

TEST_F(ScrollViewTest, ScrollRectToVisibleMovesNoFurtherThanNeededAndRespectsTheInsets) {
  scroll.setContentInset({64, 0, 0, 0});
  EXPECT_EQ(y(), -64);
  scroll.scrollRectToVisible({0, 1000, 10, 50}, NO);
  EXPECT_EQ(y(), 1050 - 667);
  scroll.scrollRectToVisible({0, 1000, 10, 50}, NO);
  EXPECT_EQ(y(), 1050 - 667);
  scroll.scrollRectToVisible({0, -500, 10, 20}, NO);
  EXPECT_EQ(y(), -64);
}

TEST_F(ScrollViewTest, ReleasedBeyondTheBeginningItRestsAtTheInset) {
  scroll.setContentInset({64, 0, 0, 0});
  drag_and_pause({100, 200}, {100, 400});
  EXPECT_LT(y(), -64);
  advance(2);
  EXPECT_EQ(y(), -64);
}

TEST_F(ScrollViewTest, EachChangeOfTheOffsetIsReportedOnce) {
  scroll.setContentOffset({0, 10});
  scroll.setContentOffset({0, 10});
  EXPECT_EQ(events(), Strings{"didScroll"});
}

TEST_F(ScrollViewTest, ADragMovesTheContentWithTheFinger) {
  press({100, 500});
  move({100, 500}, {100, 480}, 0.1);
  const CGFloat begun = y();
  move({100, 480}, {100, 380}, 0.3);
  EXPECT_NEAR(y() - begun, 100, 0.5);
  EXPECT_EQ(scroll.isDragging(), YES);
  EXPECT_EQ(scroll.isTracking(), YES);
  EXPECT_EQ(scroll.isDecelerating(), NO);
  advance(0.3);
  lift({100, 380});
  EXPECT_EQ(scroll.isDragging(), NO);
  EXPECT_EQ(scroll.isTracking(), NO);
}

TEST_F(ScrollViewTest, AFlingIsReportedInOrderAndEndsByItself) {
  fling({100, 500}, {100, 300}, 0.1);
  EXPECT_EQ(scroll.isDecelerating(), YES);
  EXPECT_EQ(milestones(), (Strings{"willBeginDragging", "willEndDragging",
                                   "didEndDragging decelerates", "willBeginDecelerating"}));
  advance(5);
  EXPECT_EQ(scroll.isDecelerating(), NO);
  EXPECT_EQ(milestones().back(), "didEndDecelerating");
  EXPECT_EQ(milestones().size(), 5u);
  EXPECT_GT(y(), 500);
}

TEST_F(ScrollViewTest, TheVelocityIsInPointsPerMillisecondAndTheTargetIsWhereItRests) {
  fling({100, 500}, {100, 300}, 0.1);
  EXPECT_NEAR(heard().velocity.y, 2.0, 0.2);
  EXPECT_EQ(heard().velocity.x, 0);
  advance(5);
  EXPECT_NEAR(y(), heard().predicted.y, 0.5);
}

TEST_F(ScrollViewTest, APauseBeforeTheReleaseDoesNotFling) {
  drag_and_pause({100, 500}, {100, 300});
  const CGFloat released = y();
  EXPECT_EQ(milestones(),
            (Strings{"willBeginDragging", "willEndDragging", "didEndDragging rests"}));
  advance(2);
  EXPECT_EQ(y(), released);
}

TEST_F(ScrollViewTest, TheDelegateMayMoveTheTarget) {
  heard().wanted_target = CGPoint{0, 444};
  fling({100, 500}, {100, 300}, 0.1);
  advance(6);
  EXPECT_EQ(y(), 444);
}

TEST_F(ScrollViewTest, AtRestItRequestsNoFrames) {
  fling({100, 500}, {100, 300}, 0.1);
  EXPECT_TRUE(loop.wants_frames());
  advance(6);
  EXPECT_FALSE(loop.wants_frames());
}

TEST_F(ScrollViewTest, TheUnanimatedSetterStopsTheDeceleration) {
  fling({100, 500}, {100, 300}, 0.1);
  advance(0.2);
  scroll.setContentOffset({0, 900}, NO);
  EXPECT_EQ(scroll.isDecelerating(), NO);
  EXPECT_EQ(milestones().back(), "didEndDecelerating");
  advance(2);
  EXPECT_EQ(y(), 900);
}

TEST_F(ScrollViewTest, SettingTheOffsetAsAPropertyLetsTheContentGlideOnFromThere) {
  fling({100, 500}, {100, 300}, 0.1);
  advance(0.2);
  scroll.setContentOffset({0, 2000});
  EXPECT_EQ(scroll.isDecelerating(), YES);
  advance(0.2);
  EXPECT_GT(y(), 2050);
}

TEST_F(ScrollViewTest, AnAnimatedOffsetArrivesAndIsNotReportedAsDeceleration) {
  scroll.setContentOffset({0, 600}, YES);
  EXPECT_EQ(y(), 0);
  advance(0.15);
  EXPECT_GT(y(), 100);
  EXPECT_LT(y(), 500);
  EXPECT_EQ(scroll.isDecelerating(), NO);
  advance(1);
  EXPECT_EQ(y(), 600);
  EXPECT_EQ(milestones(), Strings{"didEndScrollingAnimation"});
  EXPECT_FALSE(loop.wants_frames());
}

TEST_F(ScrollViewTest, AnAnimatedOffsetSetAtTheReleaseReplacesTheDeceleration) {
  heard().on_end_dragging = [](UIScrollView view) { view.setContentOffset({0, 31}, YES); };
  fling({100, 500}, {100, 300}, 0.1);
  advance(3);
  EXPECT_EQ(y(), 31);
  EXPECT_EQ(milestones(), (Strings{"willBeginDragging", "willEndDragging",
                                   "didEndDragging decelerates", "didEndScrollingAnimation"}));
}

TEST_F(ScrollViewTest, BeyondTheEdgeTheContentFollowsLessAndSpringsBack) {
  press({100, 200});
  move({100, 200}, {100, 220}, 0.1);
  move({100, 220}, {100, 420}, 0.3);
  EXPECT_LT(y(), -60);
  EXPECT_GT(y(), -110);
  advance(0.3);
  lift({100, 420});
  EXPECT_EQ(milestones().back(), "willBeginDecelerating");
  advance(1.5);
  EXPECT_EQ(y(), 0);
  EXPECT_EQ(milestones().back(), "didEndDecelerating");
}

TEST_F(ScrollViewTest, WithoutBounceItStopsAtTheEdge) {
  scroll.setBounces(NO);
  press({100, 200});
  move({100, 200}, {100, 500}, 0.2);
  EXPECT_EQ(y(), 0);
  lift({100, 500});
  advance(1);
  EXPECT_EQ(y(), 0);
}

TEST_F(ScrollViewTest, ContentThatFitsIsDraggedOnlyWhenItAlwaysBounces) {
  scroll.setContentSize({375, 100});
  drag_and_pause({100, 200}, {100, 400});
  EXPECT_TRUE(events().empty());
  scroll.setAlwaysBounceVertical(YES);
  drag_and_pause({100, 200}, {100, 400});
  EXPECT_LT(y(), -50);
  advance(2);
  EXPECT_EQ(y(), 0);
}

TEST_F(ScrollViewTest, ADisabledScrollViewIsNotDragged) {
  scroll.setScrollEnabled(NO);
  drag_and_pause({100, 500}, {100, 300});
  EXPECT_EQ(y(), 0);
  EXPECT_TRUE(events().empty());
}

TEST_F(ScrollViewTest, DisablingDuringADragEndsIt) {
  press({100, 500});
  move({100, 500}, {100, 400}, 0.1);
  scroll.setScrollEnabled(NO);
  EXPECT_EQ(scroll.isDragging(), NO);
  const CGFloat left = y();
  move({100, 400}, {100, 300}, 0.1);
  EXPECT_EQ(y(), left);
  lift({100, 300});
}

TEST_F(ScrollViewTest, AFingerCatchesGlidingContent) {
  fling({100, 500}, {100, 300}, 0.1);
  advance(0.2);
  press({100, 300});
  EXPECT_EQ(scroll.isDecelerating(), NO);
  EXPECT_EQ(scroll.isDragging(), YES);
  const CGFloat caught = y();
  advance(0.5);
  EXPECT_EQ(y(), caught);
  lift({100, 300});
  advance(1);
  EXPECT_EQ(y(), caught);
  EXPECT_EQ(milestones().back(), "didEndDragging rests");
}

TEST_F(ScrollViewTest, AFingerCatchesAPageThatIsTurningSideways) {
  make_pages();
  fling({300, 300}, {200, 300}, 0.1);
  advance(0.1);
  press({200, 300});
  EXPECT_EQ(scroll.isDragging(), YES);
  lift({200, 300});
  advance(1);
  EXPECT_EQ(std::fmod(scroll.contentOffset().x, 375), 0);
}

TEST_F(ScrollViewTest, AShortFlickTurnsOnePageFromThePredictedEnd) {
  make_pages();
  fling({300, 300}, {220, 300}, 0.08);
  EXPECT_LT(scroll.contentOffset().x, 375 / 2.0);
  EXPECT_EQ(heard().predicted.x, 375);
  advance(1);
  EXPECT_EQ(scroll.contentOffset().x, 375);
  EXPECT_EQ(milestones().back(), "didEndDecelerating");
}

TEST_F(ScrollViewTest, ASlowShortDragLetsThePageFallBack) {
  make_pages();
  drag_and_pause({300, 300}, {180, 300});
  EXPECT_GT(scroll.contentOffset().x, 50);
  advance(1);
  EXPECT_EQ(scroll.contentOffset().x, 0);
}

TEST_F(ScrollViewTest, ShrinkingContentIsNotLeftBeyondItsEnd) {
  scroll.setContentOffset({0, 3000});
  scroll.setContentSize({375, 1000});
  EXPECT_EQ(y(), 1000 - 667);
}

TEST_F(ScrollViewTest, AnOffsetSetAheadOfItsContentIsKept) {
  UIScrollView early = UIScrollView::alloc().initWithFrame(kScreen);
  early.setContentOffset({0, 31});
  early.setContentSize({375, 200});
  EXPECT_EQ(early.contentOffset().y, 31);
  early.release();
}

TEST_F(ScrollViewTest, ItsSubviewsAreItsContentOnly) {
  fling({100, 500}, {100, 300}, 0.1);
  advance(0.1);
  EXPECT_EQ(scroll.subviews().count(), 0u);
}

TEST_F(ScrollViewTest, WithTheDirectionalLockASteepDragKeepsToItsAxis) {
  scroll.setContentSize({2000, 4000});
  scroll.setDirectionalLockEnabled(YES);
  drag_and_pause({200, 500}, {180, 300});
  EXPECT_EQ(scroll.contentOffset().x, 0);
  EXPECT_GT(y(), 150);
}

TEST_F(ScrollViewTest, WithoutTheLockBothAxesFollow) {
  scroll.setContentSize({2000, 4000});
  drag_and_pause({300, 500}, {200, 300});
  EXPECT_GT(scroll.contentOffset().x, 80);
  EXPECT_GT(y(), 150);
}

int superview_layouts = 0;
void count_layout(UIView) {
  ++superview_layouts;
}

TEST_F(ScrollViewTest, ChangingTheOffsetDoesNotLayOutTheSuperview) {
  if (!objc_getClass("TestCountingView"))
    objc::ClassBuilder("TestCountingView", "UIView")
        .method<&count_layout>("layoutSubviews")
        .finish();
  const objc::Object cls(objc_getClass("TestCountingView"));
  const UIView holder = objc::send<UIView>(cls, "alloc"_sel).initWithFrame(kScreen);
  window.addSubview(holder);
  holder.addSubview(scroll);
  advance(0.1);
  ASSERT_GT(superview_layouts, 0);
  superview_layouts = 0;
  fling({100, 500}, {100, 300}, 0.1);
  advance(5);
  EXPECT_EQ(superview_layouts, 0);
  holder.removeFromSuperview();
  holder.release();
}

TEST_F(ScrollViewTest, ADelegateMayReleaseTheScrollViewDuringAGlide) {
  const UIScrollView brief = UIScrollView::alloc().initWithFrame(kScreen);
  brief.setContentSize({375, 4000});
  brief.setDelegate(listener);
  window.addSubview(brief);
  brief.release();
  heard().on_scroll = [](UIScrollView view) {
    if (view.contentOffset().y > 300) view.removeFromSuperview();
  };
  brief.setContentOffset({0, 1000}, YES);
  advance(2);
  EXPECT_FALSE(loop.wants_frames());
}

}  // namespace
