#include <gmock/gmock.h>

#include "platform/UIKit/UIGraphics.h"
#include "platform/UIKit/UIScrollView.h"
#include "tests/host/uikit/support/page_test.h"
#include "tests/support/raised.h"

namespace host::test {
namespace {

class NavigationTest : public PageTest {
 protected:
  NavigationTest() {
    first = ToldPage::make("First");
    second = ToldPage::make("Second");
    navigation = UINavigationController::alloc().initWithRootViewController(first).autorelease();
    window.setRootViewController(navigation);
    advance(0.1);
    told();
  }
  void push(UIViewController page) {
    navigation.pushViewController(page, YES);
    advance(1);
  }
  bool bar_shows(NSString text) { return shows(navigation.navigationBar(), text); }
  CGFloat left_of(UIViewController page) { return CGRect(page.view().frame()).min_x(); }

  UIViewController first;
  UIViewController second;
  UINavigationController navigation;
};

TEST_F(NavigationTest, ShowsItsRootUnderABarWithItsTitle) {
  EXPECT_EQ(navigation.topViewController(), first);
  EXPECT_EQ(first.view().window(), window);
  EXPECT_EQ(first.navigationController(), navigation);
  EXPECT_TRUE(bar_shows("First"_ns));
  EXPECT_EQ(navigation.navigationBar().frame(), (CGRect{0, 20, 375, 44}));
}

TEST_F(NavigationTest, APushedPageSlidesInWhileTheOtherMovesAside) {
  navigation.pushViewController(second, YES);
  EXPECT_EQ(told(), (Events{"First will disappear", "Second will appear"}));
  advance(0.1);
  const auto shown = second.view().layer().presentationLayer().frame().origin.x;
  EXPECT_GT(shown, 0);
  EXPECT_LT(shown, 375);
  const auto behind = first.view().layer().presentationLayer().frame().origin.x;
  EXPECT_NEAR(behind, -(375 - shown) / 3, 1);
  photograph("navigation-push", clock.now());
  advance(1);
  EXPECT_EQ(told(), (Events{"First did disappear", "Second did appear"}));
  EXPECT_FALSE(first.view().window());
  EXPECT_TRUE(bar_shows("Second"_ns));
  EXPECT_TRUE(bar_shows("First"_ns)) << "the back button";
  photograph("navigation-second", clock.now());
}

TEST_F(NavigationTest, TheBackButtonPopsThePage) {
  push(second);
  told();
  tap(kBack);
  EXPECT_EQ(told(), (Events{"Second will disappear", "First will appear"}));
  advance(1);
  EXPECT_EQ(told(), (Events{"Second did disappear", "First did appear"}));
  EXPECT_EQ(navigation.viewControllers().count(), 1u);
  EXPECT_EQ(first.view().frame(), kScreen);
  EXPECT_FALSE(second.parentViewController());
  EXPECT_FALSE(bar_shows("Second"_ns));
}

TEST_F(NavigationTest, TheRootCannotBePopped) {
  tap(kBack);
  advance(1);
  EXPECT_EQ(navigation.topViewController(), first);
  EXPECT_FALSE(navigation.popViewControllerAnimated(YES));
}

TEST_F(NavigationTest, ADragFromTheLeftEdgePopsThePage) {
  push(second);
  told();
  press(kEdge);
  glide(kEdge, {203, 300}, 0.5);
  EXPECT_EQ(told(), (Events{"Second will disappear", "First will appear"}));
  EXPECT_NEAR(left_of(second), 200, 1) << "it is under the finger";
  EXPECT_NEAR(left_of(first), -(375 - 200) / 3.0, 1);
  photograph("navigation-swipe", clock.now());
  advance(0.3);
  lift({203, 300});
  advance(1);
  EXPECT_EQ(told(), (Events{"Second did disappear", "First did appear"}));
  EXPECT_EQ(navigation.topViewController(), first);
}

TEST_F(NavigationTest, ADragReleasedBeforeTheMiddleKeepsThePage) {
  push(second);
  told();
  press(kEdge);
  glide(kEdge, {120, 300}, 0.5);
  advance(0.3);
  lift({120, 300});
  advance(1);
  EXPECT_EQ(navigation.topViewController(), second);
  EXPECT_EQ(navigation.viewControllers().count(), 2u);
  EXPECT_EQ(second.view().frame(), kScreen);
  EXPECT_FALSE(first.view().window());
  EXPECT_EQ(told(), (Events{"Second will disappear", "First will appear", "First will disappear",
                            "Second will appear", "First did disappear", "Second did appear"}));
  EXPECT_TRUE(bar_shows("Second"_ns));
  tap(kBack);
  advance(1);
  EXPECT_EQ(navigation.topViewController(), first) << "all works as before";
}

TEST_F(NavigationTest, AFlingDecidesByItsDirection) {
  push(second);
  press(kEdge);
  glide(kEdge, {80, 300}, 0.08);
  lift({80, 300});
  advance(1);
  EXPECT_EQ(navigation.topViewController(), first);
}

TEST_F(NavigationTest, ADragElsewherePopsNothing) {
  push(second);
  press({100, 300});
  glide({100, 300}, {350, 300}, 0.3);
  lift({350, 300});
  advance(1);
  EXPECT_EQ(navigation.topViewController(), second);
}

TEST_F(NavigationTest, ATableUnderTheEdgeStillScrolls) {
  const UIScrollView scroll = UIScrollView::alloc().initWithFrame(kScreen).autorelease();
  scroll.setContentSize({375, 2000});
  second.view().addSubview(scroll);
  push(second);
  EXPECT_EQ(scroll.contentInset().top, 64) << "the bar does not cover its beginning";
  EXPECT_EQ(scroll.contentOffset().y, -64);
  press({5, 500});
  glide({5, 500}, {5, 300}, 0.5);
  lift({5, 300});
  advance(2);
  EXPECT_GT(scroll.contentOffset().y, 100);
  EXPECT_EQ(navigation.topViewController(), second);
}

TEST_F(NavigationTest, APageMayKeepItsScrollViewFromBeingInset) {
  second.setAutomaticallyAdjustsScrollViewInsets(NO);
  const UIScrollView scroll = UIScrollView::alloc().initWithFrame(kScreen).autorelease();
  second.view().addSubview(scroll);
  push(second);
  EXPECT_EQ(scroll.contentInset().top, 0);
}

TEST_F(NavigationTest, AnotherPushDoesNotWaitForTheFirst) {
  const auto third = ToldPage::make("Third");
  navigation.pushViewController(second, YES);
  advance(0.1);
  navigation.pushViewController(third, YES);
  advance(1);
  EXPECT_EQ(navigation.viewControllers().count(), 3u);
  EXPECT_EQ(third.view().frame(), kScreen);
  EXPECT_FALSE(second.view().window());
  EXPECT_EQ(told(), (Events{"First will disappear", "Second will appear", "First did disappear",
                            "Second did appear", "Second will disappear", "Third will appear",
                            "Second did disappear", "Third did appear"}));
}

TEST_F(NavigationTest, PoppingToTheRootRemovesAllOtherPages) {
  const auto third = ToldPage::make("Third");
  navigation.pushViewController(second, NO);
  navigation.pushViewController(third, NO);
  const NSArray popped = navigation.popToRootViewControllerAnimated(YES);
  EXPECT_EQ(popped.count(), 2u);
  advance(1);
  EXPECT_EQ(first.view().window(), window);
  EXPECT_FALSE(third.view().window());
  EXPECT_FALSE(third.parentViewController());
}

TEST_F(NavigationTest, TheWholeStackMayBeReplaced) {
  navigation.setViewControllers(NSArray::arrayWithObjects(second, first), NO);
  advance(0.1);
  EXPECT_EQ(navigation.topViewController(), first);
  EXPECT_TRUE(bar_shows("Second"_ns));
  navigation.setViewControllers(NSArray::arrayWithObject(second), NO);
  advance(0.1);
  EXPECT_EQ(second.view().window(), window);
  EXPECT_FALSE(first.parentViewController());
}

TEST_F(NavigationTest, AButtonOfThePageIsAtTheRightAndFollowsItsChanges) {
  const auto target = RecordingTarget::make("button");
  const auto item =
      UIBarButtonItem::alloc()
          .initWithTitle("Done"_ns, UIBarButtonItemStyleDone, target.get(), "press"_sel)
          .autorelease();
  first.navigationItem().setRightBarButtonItem(item);
  EXPECT_TRUE(bar_shows("Done"_ns));
  tap(kRightButton);
  EXPECT_EQ(told(), Events{"button pressed"});
  item.setTitle("Share"_ns);
  EXPECT_TRUE(bar_shows("Share"_ns));
  item.setEnabled(NO);
  tap(kRightButton);
  EXPECT_EQ(told(), Events{});
  first.setTitle("Other"_ns);
  EXPECT_TRUE(bar_shows("Other"_ns));
}

TEST_F(NavigationTest, AnImageTakesTheTintOfItsItemWhichMayBeAPattern) {
  UIGraphicsBeginImageContextWithOptions({22, 22}, NO, 2);
  UIColor::blackColor().setFill();
  UIRectFill({2, 2, 18, 18});
  const UIImage picture = UIGraphicsGetImageFromCurrentImageContext().imageWithRenderingMode(
      UIImageRenderingModeAlwaysTemplate);
  UIGraphicsEndImageContext();
  UIGraphicsBeginImageContextWithOptions({6, 6}, YES, 2);
  UIColor::redColor().setFill();
  UIRectFill({0, 0, 6, 6});
  UIColor::orangeColor().setFill();
  UIRectFill({0, 0, 6, 3});
  const UIColor pattern =
      UIColor::colorWithPatternImage(UIGraphicsGetImageFromCurrentImageContext());
  UIGraphicsEndImageContext();
  const auto item = UIBarButtonItem::alloc()
                        .initWithImage(picture, UIBarButtonItemStyleBordered, nil, nullptr)
                        .autorelease();
  first.navigationItem().setRightBarButtonItem(item);
  item.setTintColor(pattern);
  advance(0.1);
  photograph("navigation-pattern", clock.now());
  const UIView button = navigation.navigationBar().hitTest(
      navigation.navigationBar().convertPointFromView(kRightButton, window), nil);
  EXPECT_TRUE(button.tintColor().isEqual(pattern));
}

TEST_F(NavigationTest, ALongTitleLeavesRoomForTheBackButton) {
  first.setTitle("A title that is far too long for a way back"_ns);
  push(second);
  EXPECT_TRUE(bar_shows("Back"_ns));
}

TEST_F(NavigationTest, AHiddenBarLeavesItsRoomToThePage) {
  const UIScrollView scroll = UIScrollView::alloc().initWithFrame(kScreen).autorelease();
  second.view().addSubview(scroll);
  push(second);
  navigation.setNavigationBarHidden(YES, YES);
  advance(1);
  EXPECT_TRUE(navigation.navigationBar().isHidden());
  EXPECT_EQ(scroll.contentInset().top, 20);
}

TEST_F(NavigationTest, APagePresentsOverTheWholeStackEvenBeforeItAppears) {
  const auto card = ToldPage::make("Card");
  objc::state_of<ToldPage>(second).on_appear = [&] {
    objc::state_of<ToldPage>(second).on_appear = nullptr;
    second.presentViewController(card, YES, nullptr);
  };
  push(second);
  EXPECT_EQ(card.view().window(), window);
  EXPECT_EQ(second.presentedViewController(), card);
  EXPECT_EQ(navigation.presentedViewController(), card);
  EXPECT_EQ(navigation.visibleViewController(), card);
  told();
  second.dismissViewControllerAnimated(YES, nullptr);
  advance(1);
  EXPECT_FALSE(card.view().window());
  EXPECT_THAT(told(), ::testing::ElementsAre("Card will disappear", "Second will appear",
                                             "Card did disappear", "Second did appear"));
}

TEST_F(NavigationTest, PushingOrPresentingNothingRaises) {
  EXPECT_THAT(
      raised_by([&] { navigation.pushViewController(nil, YES); }),
      ::testing::Optional(::testing::StartsWith("Application tried to push a nil view controller "
                                                "on target <UINavigationController: 0x")));
  const auto present_nil = [&] { first.presentViewController(nil, YES, nullptr); };
  EXPECT_THAT(
      raised_by(present_nil),
      ::testing::Optional(::testing::StartsWith(
          "Application tried to present a nil modal view controller on target <TestToldPage: 0x")));
  EXPECT_TRUE(raised_by([&] { first.presentModalViewController(nil, NO); }));
  EXPECT_EQ(navigation.topViewController(), first);
  EXPECT_FALSE(first.presentedViewController());
}

TEST_F(NavigationTest, IsReleasedWithItsPages) {
  push(second);
  window.setRootViewController(nil);
  advance(1);
  EXPECT_FALSE(second.view().window());
  tap(kBack);
}

}  // namespace
}  // namespace host::test
