#include "platform/UIKit/UIButton.h"
#include "tests/host/uikit/scroll/scroll_view_fixture.h"

// Who gets a finger: the scroll view, an enclosing scroll view, or the content.

namespace {

using host::test::ScrollViewTest;
using Strings = std::vector<std::string>;

class NestedScrollViewTest : public ScrollViewTest {
 public:
  NestedScrollViewTest() {
    make_pages();
    inner = UIScrollView::alloc().initWithFrame({0, 0, 375, 667});
    inner.setContentSize({375, 2000});
    scroll.addSubview(inner);
    advance(0.1);
  }
  ~NestedScrollViewTest() override {
    inner.removeFromSuperview();
    inner.release();
  }
  UIScrollView inner;
};

TEST_F(NestedScrollViewTest, AVerticalDragBelongsToTheInnerView) {
  drag_and_pause({200, 500}, {205, 300});
  EXPECT_GT(inner.contentOffset().y, 150);
  EXPECT_EQ(scroll.contentOffset(), CGPoint{});
}

TEST_F(NestedScrollViewTest, AHorizontalDragBelongsToTheOuterView) {
  drag_and_pause({300, 500}, {50, 505});
  EXPECT_EQ(inner.contentOffset(), CGPoint{});
  advance(1);
  EXPECT_EQ(scroll.contentOffset().x, 375);
}

Strings touched;
void note_began(UIView, NSSet, UIEvent) {
  touched.push_back("began");
}
void note_ended(UIView, NSSet, UIEvent) {
  touched.push_back("ended");
}
void note_cancelled(UIView, NSSet, UIEvent) {
  touched.push_back("cancelled");
}

class ContentTouchTest : public ScrollViewTest {
 public:
  ContentTouchTest() {
    if (!objc_getClass("TestTouchedView"))
      objc::ClassBuilder("TestTouchedView", "UIView")
          .method<&note_began>("touchesBegan:withEvent:")
          .method<&note_ended>("touchesEnded:withEvent:")
          .method<&note_cancelled>("touchesCancelled:withEvent:")
          .finish();
    const objc::Object cls(objc_getClass("TestTouchedView"));
    const UIView content = objc::send<UIView>(cls, "alloc"_sel).initWithFrame({0, 0, 375, 4000});
    scroll.addSubview(content);
    content.release();
    touched.clear();
  }
};

TEST_F(ContentTouchTest, ATouchReachesTheContentAfterAMoment) {
  press({100, 100});
  advance(0.14);
  EXPECT_TRUE(touched.empty());
  advance(0.02);
  EXPECT_EQ(touched, Strings{"began"});
  lift({100, 100});
  EXPECT_EQ(touched, (Strings{"began", "ended"}));
}

TEST_F(ContentTouchTest, AQuickTapReachesTheContentWhenTheFingerLifts) {
  press({100, 100});
  advance(0.05);
  lift({100, 100});
  EXPECT_EQ(touched, (Strings{"began", "ended"}));
}

TEST_F(ContentTouchTest, AQuickDragNeverReachesTheContent) {
  fling({100, 500}, {100, 300}, 0.1);
  advance(1);
  EXPECT_TRUE(touched.empty());
}

TEST_F(ContentTouchTest, ALateDragCancelsTheTouchOnTheContent) {
  press({100, 500});
  advance(0.3);
  move({100, 500}, {100, 300}, 0.2);
  lift({100, 300});
  EXPECT_EQ(touched, (Strings{"began", "cancelled"}));
  EXPECT_GT(y(), 100);
}

TEST_F(ContentTouchTest, WithoutTheDelayTheContentIsTouchedAtOnce) {
  scroll.setDelaysContentTouches(NO);
  press({100, 100});
  EXPECT_EQ(touched, Strings{"began"});
  lift({100, 100});
}

TEST_F(ContentTouchTest, ContentThatMustNotLoseItsTouchKeepsIt) {
  scroll.setCanCancelContentTouches(NO);
  press({100, 500});
  advance(0.3);
  move({100, 500}, {100, 300}, 0.2);
  lift({100, 300});
  EXPECT_EQ(touched, (Strings{"began", "ended"}));
  EXPECT_EQ(y(), 0);
}

TEST_F(ContentTouchTest, ATouchThatCatchesMovingContentDoesNotReachIt) {
  fling({100, 500}, {100, 300}, 0.1);
  advance(0.2);
  press({100, 300});
  advance(0.3);
  lift({100, 300});
  EXPECT_TRUE(touched.empty());
}

TEST_F(ScrollViewTest, ADragThatStartsLateOnAButtonBelongsToTheButton) {
  const UIButton button =
      objc::cast<UIButton>(UIButton::alloc().UIView::initWithFrame({0, 400, 375, 200}));
  scroll.addSubview(button);
  press({100, 500});
  advance(0.3);
  move({100, 500}, {100, 300}, 0.2);
  lift({100, 300});
  EXPECT_EQ(y(), 0);
  button.release();
}

}  // namespace
