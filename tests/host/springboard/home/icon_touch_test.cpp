#include "host/springboard/system/system_actions.h"
#include "platform/SpringBoard/SBFolderIcon.h"
#include "platform/SpringBoard/SBIconListView.h"
#include "platform/SpringBoard/SBIconViewMap.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "tests/support/phone_fixture.h"
#include "tests/tweak/method_spy.h"

namespace host::springboard {
namespace {

using namespace test;
using Order = std::vector<std::string>;

template <objc::FixedString Selector>
using TouchesSpy = MethodSpy<Selector, void(SBIconView, NSSet, UIEvent)>;
template <objc::FixedString Selector>
using DelegateSpy = MethodSpy<Selector, void(SBIconController, SBIconView)>;

bool is_editing() {
  return SBIconController::sharedInstance().isEditing();
}

class IconTouchTest : public PhoneTest {
 protected:
  void SetUp() override { launch(); }

  bool opened_something() {
    settle();
    return shown_now() == Shown::Application;
  }
  SBIconView first_folder() const {
    const auto page = objc::cast<SBIconListView>(icon_view("com.apple.podcasts").superview());
    for (const SBIcon each : page.icons().of<SBIcon>()) {
      if (each.isFolderIcon()) return SBIconViewMap::homescreenMap().mappedIconViewForIcon(each);
    }
    return nil;
  }
  /// Does the same as an extension that drags the icon itself.
  static void put_own_pan_on(SBIconView view) {
    view.setGestureRecognizers(NSArray::array());
    const auto pan = UIPanGestureRecognizer::alloc().initWithTarget(nil, nullptr).autorelease();
    pan.setCancelsTouchesInView(YES);
    view.addGestureRecognizer(pan);
  }
};

TEST_F(IconTouchTest, ATapIsReportedToTheDelegateByTheViewsTouches) {
  Order order;
  const objc::Class controller = SBIconController::cls();
  const TouchesSpy<"touchesBegan:withEvent:"> began(SBIconView::cls(), &order);
  const TouchesSpy<"touchesMoved:withEvent:"> moved(SBIconView::cls(), &order);
  const TouchesSpy<"touchesEnded:withEvent:"> ended(SBIconView::cls(), &order);
  const DelegateSpy<"iconTouchBegan:"> told_began(controller, &order);
  const MethodSpy<"icon:touchMoved:", void(SBIconController, SBIconView, UITouch)> told_moved(
      controller, &order);
  const MethodSpy<"icon:touchEnded:", void(SBIconController, SBIconView, BOOL)> told_ended(
      controller, &order);
  const DelegateSpy<"iconTapped:"> told_tapped(controller, &order);
  const CGPoint point = on_screen(kCalendar);
  press(point);
  move({point.x + 3, point.y});
  lift();
  EXPECT_EQ(
      order,
      (Order{"touchesBegan:withEvent:", "iconTouchBegan:", "touchesMoved:withEvent:",
             "icon:touchMoved:", "touchesEnded:withEvent:", "icon:touchEnded:", "iconTapped:"}));
  EXPECT_EQ(std::get<1>(told_ended.last()), YES);
  EXPECT_EQ(std::get<0>(told_tapped.last()), icon_view(kCalendar));
  EXPECT_TRUE(opened_something());
}

TEST_F(IconTouchTest, ACancelledTouchIsNotATap) {
  const MethodSpy<"icon:touchEnded:", void(SBIconController, SBIconView, BOOL)> told_ended(
      SBIconController::cls());
  press(on_screen(kCalendar));
  touches.cancel_all(clock.now());
  ASSERT_EQ(told_ended.count(), 1);
  EXPECT_EQ(std::get<1>(told_ended.last()), NO);
  EXPECT_FALSE(icon_view(kCalendar).isHighlighted());
  EXPECT_FALSE(opened_something());
}

TEST_F(IconTouchTest, AnIconWorksWithoutRecognizers) {
  EXPECT_EQ(icon_view(kCalendar).gestureRecognizers().count(), 0u);
  icon_view(kCalendar).setGestureRecognizers(NSArray::array());
  tap(on_screen(kCalendar));
  EXPECT_TRUE(opened_something());
  press_home();
  settle();
  press(on_screen(kCalendar));
  advance(0.6);
  lift();
  EXPECT_TRUE(is_editing());
}

TEST_F(IconTouchTest, ATapOpensFromTheDockToo) {
  tap(on_screen(kPhone));
  EXPECT_TRUE(opened_something());
}

TEST_F(IconTouchTest, ATappingFingerMayStrayWithinTheIconButNotBeyond) {
  const CGPoint point = on_screen(kCalendar);
  drag(point, {point.x, point.y + 20}, 0.1);
  lift();
  EXPECT_TRUE(opened_something());
  press_home();
  settle();
  drag(point, {point.x, point.y + 70}, 0.1);
  lift();
  EXPECT_FALSE(opened_something());
}

TEST_F(IconTouchTest, APanThatHasBegunSuppressesTapAndLongPress) {
  put_own_pan_on(icon_view(kCalendar));
  const CGPoint point = on_screen(kCalendar);
  drag(point, {point.x, point.y + 15}, 0.1);
  EXPECT_FALSE(icon_view(kCalendar).isHighlighted());
  advance(1);
  EXPECT_FALSE(is_editing());
  lift();
  EXPECT_FALSE(opened_something());
}

TEST_F(IconTouchTest, APanThatHasNotBegunLeavesTapAndLongPress) {
  put_own_pan_on(icon_view(kCalendar));
  tap(on_screen(kCalendar));
  EXPECT_TRUE(opened_something());
  press_home();
  settle();
  press(on_screen(kCalendar));
  advance(0.45);
  EXPECT_FALSE(is_editing());
  advance(0.1);
  EXPECT_TRUE(is_editing());
  lift();
  EXPECT_FALSE(opened_something());
}

TEST_F(IconTouchTest, AStrayingFingerIsNotALongPress) {
  const CGPoint point = on_screen(kCalendar);
  press(point);
  move({point.x, point.y + 14});
  advance(1);
  EXPECT_FALSE(is_editing());
}

TEST_F(IconTouchTest, AFolderThatIsHeldOrDraggedIsNotOpened) {
  SBIconController::sharedInstance().scrollToIconListAtIndex(1, NO);
  advance(0.1);
  const CGPoint point = on_screen(first_folder());
  press(point);
  advance(0.6);
  ASSERT_TRUE(is_editing());
  lift();
  settle();
  EXPECT_FALSE(SBIconController::sharedInstance().hasOpenFolder());
  drag(point, {point.x + 20, point.y + 20}, 0.1);
  move(point);
  lift();
  settle();
  EXPECT_FALSE(SBIconController::sharedInstance().hasOpenFolder());
  tap(point);
  settle();
  EXPECT_TRUE(SBIconController::sharedInstance().hasOpenFolder());
}

TEST_F(IconTouchTest, ASecondFingerDoesNotTakeOverTheFirstOnesDrag) {
  set_editing(true);
  const CGPoint photos = on_screen(kPhotos);
  const CGPoint music = on_screen(kMusic);
  press(on_screen(kCalendar));
  touches.began(2, music, clock.now());
  touches.moved(2, {music.x + 60, music.y + 100}, clock.now());
  advance(0.1);
  move({photos.x + 24, photos.y});
  advance(0.5);
  touches.ended(2, {music.x + 60, music.y + 100}, clock.now());
  lift();
  settle();
  EXPECT_EQ(on_screen(kCalendar), photos);
  EXPECT_EQ(on_screen(kMusic), music);
}

TEST_F(IconTouchTest, DraggingSendsTheMessagesThatTurnPagesAndCloseFolders) {
  const auto icons = SBIconController::sharedInstance();
  const MethodSpy<"scrollToIconListAtIndex:animate:", BOOL(SBIconController, NSInteger, BOOL)>
      turns(SBIconController::cls());
  const MethodSpy<"closeFolderAnimated:", void(SBIconController, BOOL)> closes(
      SBIconController::cls());
  set_editing(true);
  drag(on_screen(kPhotos), {370, 200}, 0.3, 1.0);
  lift();
  settle();
  ASSERT_EQ(turns.count(), 1);
  EXPECT_EQ(std::get<0>(turns.last()), 1);
  EXPECT_EQ(icons.currentIconListIndex(), 1);
  tap(on_screen(first_folder()));
  settle();
  drag(on_screen(kCalculator), {200, 540}, 0.3, 1.5);
  EXPECT_EQ(closes.count(), 1);
  lift();
  settle();
  tap(on_screen(first_folder()));
  settle();
  ASSERT_TRUE(icons.hasOpenFolder());
  tap({187, 640});
  EXPECT_EQ(closes.count(), 2);
}

}  // namespace
}  // namespace host::springboard
