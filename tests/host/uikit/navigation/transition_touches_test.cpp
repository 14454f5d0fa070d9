#include "platform/UIKit/UIBarButtonItem.h"
#include "tests/host/uikit/support/page_test.h"
#include "tests/host/uikit/support/recording_view.h"

// What fingers can reach while one page replaces another.

namespace host::test {
namespace {

constexpr CGPoint kPoint{200, 300};

class PushedPages : public PageTest {
 protected:
  PushedPages() {
    navigation = UINavigationController::alloc().initWithRootViewController(first).autorelease();
    window.setRootViewController(navigation);
    advance(0.1);
    told();
  }
  static UIViewController make(const char* name) {
    const auto page = UIViewController::alloc().init().autorelease();
    page.view().addSubview(RecordingView::make(name, kScreen));
    return page;
  }
  void give_button(UIViewController page, TestTarget taker) {
    const auto item = UIBarButtonItem::alloc()
                          .initWithTitle("Go"_ns, UIBarButtonItemStylePlain, taker, "press"_sel)
                          .autorelease();
    page.navigationItem().setRightBarButtonItem(item);
  }
  void push() { navigation.pushViewController(second, YES); }
  Events after_tap(CGPoint point) {
    told();
    tap(point);
    return RecordingView::told_of_touches();
  }

  const UIViewController first = make("first");
  const UIViewController second = make("second");
  UINavigationController navigation;
};

TEST_F(PushedPages, TakeNoTouchesDuringTheTransition) {
  push();
  EXPECT_EQ(after_tap(kPoint), Events{});
  advance(0.2);
  EXPECT_EQ(after_tap(kPoint), Events{});
  advance(0.2);
  EXPECT_EQ(after_tap(kPoint), (Events{"second began", "second ended"}));
  tap(kBack);
  EXPECT_EQ(after_tap(kPoint), Events{});
  advance(0.5);
  EXPECT_EQ(after_tap(kPoint), (Events{"first began", "first ended"}));
}

TEST_F(PushedPages, TheBarTakesNoTouchesEither) {
  const auto taker = RecordingTarget::make("button");
  give_button(second, taker.get());
  give_button(first, taker.get());
  push();
  EXPECT_EQ(after_tap(kRightButton), Events{});
  tap(kBack);
  advance(1);
  EXPECT_EQ(navigation.topViewController(), second);
  EXPECT_EQ(after_tap(kRightButton), Events{"button pressed"});
  tap(kBack);
  advance(0.1);
  EXPECT_EQ(after_tap(kRightButton), Events{});
  advance(1);
}

TEST_F(PushedPages, AFingerOnTheBarIsCancelled) {
  const auto taker = RecordingTarget::make("button");
  give_button(first, taker.get());
  press(kRightButton);
  advance(0.05);
  push();
  lift(kRightButton);
  advance(1);
  EXPECT_EQ(RecordingView::told_of_touches(), Events{});
}

TEST_F(PushedPages, AFingerOnThePageIsCancelled) {
  press(kPoint);
  advance(0.05);
  told();
  push();
  EXPECT_EQ(RecordingView::told_of_touches(), Events{"first cancelled"});
  lift(kPoint);
  advance(1);
  EXPECT_EQ(RecordingView::told_of_touches(), Events{});
}

TEST_F(PushedPages, TheFingerThatDragsAPageKeepsItsTouchAndOthersAreCancelled) {
  const auto taker = RecordingTarget::make("button");
  give_button(first, taker.get());
  give_button(second, taker.get());
  push();
  advance(1);
  press(kPoint, 1);
  press(kEdge);
  told();
  glide(kEdge, {150, 300}, 0.3);
  EXPECT_EQ(RecordingView::told_of_touches(), Events{"second cancelled"});
  for (const CGPoint point : {CGPoint{60, 500}, kRightButton}) {
    press(point, 2);
    lift(point, 2);
  }
  EXPECT_EQ(RecordingView::told_of_touches(), Events{})
      << "nor does another reach the pages or the bar";
  glide({150, 300}, {300, 300}, 0.3);
  EXPECT_NEAR(CGRect(second.view().frame()).min_x(), 297, 12) << "it is still under the finger";
  lift({300, 300});
  lift(kPoint, 1);
  advance(1);
  EXPECT_EQ(navigation.topViewController(), first);
  EXPECT_EQ(after_tap(kPoint), (Events{"first began", "first ended"}));
}

TEST_F(PushedPages, AnInterruptedTransitionEnablesTouchesAgain) {
  push();
  advance(0.1);
  navigation.popToRootViewControllerAnimated(NO);
  advance(0.5);
  EXPECT_EQ(after_tap(kPoint), (Events{"first began", "first ended"}));
  push();
  advance(0.1);
  navigation.popToRootViewControllerAnimated(YES);
  EXPECT_EQ(after_tap(kPoint), Events{});
  advance(1);
  EXPECT_EQ(after_tap(kPoint), (Events{"first began", "first ended"}));
}

}  // namespace
}  // namespace host::test
