#include "host/springboard/parts/window_levels.h"
#include "host/uikit/geometry/window_list.h"
#include "platform/SpringBoard/SBReachabilityManager.h"
#include "platform/SpringBoard/SBUIController.h"
#include "tests/host/springboard/support/surface_fixture.h"

namespace host::springboard {
namespace {

using namespace test;

class ReachabilityTest : public SurfaceTest {
 protected:
  static SBReachabilityManager manager() { return SBReachabilityManager::sharedInstance(); }
  static bool is_active() { return manager().reachabilityModeActive(); }
  /// How far the first window at this level is moved down; -1 when there is none.
  static CGFloat way_down(UIWindowLevel level) {
    for (const UIWindow window : uikit::visible_windows()) {
      if (window.windowLevel() == level) return window.transform().ty;
    }
    return -1;
  }
  static bool is_there(UIWindowLevel level) { return way_down(level) >= 0; }
  static int count_of(UIWindowLevel level) {
    int count = 0;
    for (const UIWindow window : uikit::visible_windows())
      count += window.windowLevel() == level ? 1 : 0;
    return count;
  }
};

TEST_F(ReachabilityTest, TheIconsMoveDownToTheThumb) {
  const CGFloat before = on_screen(kMusic).y;
  toggle_reachability();
  settle();
  press({on_screen(kCalendar).x, on_screen(kCalendar).y + screen().height * 0.4});
  EXPECT_TRUE(icon_view(kCalendar).isHighlighted());
  EXPECT_TRUE(is_at_rest());
  lift();
  toggle_reachability();
  settle();
  EXPECT_EQ(on_screen(kMusic).y, before);
}

TEST_F(ReachabilityTest, ItGoesBackByItselfAfterEightSeconds) {
  toggle_reachability();
  advance(7.9);
  EXPECT_TRUE(is_active());
  advance(0.2);
  EXPECT_FALSE(is_active());
}

TEST_F(ReachabilityTest, TheStatusBarComesWithTheScreenAndABannerStays) {
  present_banner("a message");
  toggle_reachability();
  EXPECT_EQ(way_down(UIWindowLevelNormal), screen().height * 0.4);
  EXPECT_EQ(way_down(UIWindowLevelStatusBar), screen().height * 0.4);
  EXPECT_EQ(way_down(kBannerLevel), 0);
  EXPECT_EQ(way_down(kLockScreenLevel - 1), 0);
}

TEST_F(ReachabilityTest, EachMovementTakesAThirdOfASecond) {
  for (int way = 0; way < 2; ++way) {
    toggle_reachability();
    advance(0.3);
    EXPECT_FALSE(is_at_rest());
    advance(0.1);
    EXPECT_TRUE(is_at_rest());
  }
}

TEST_F(ReachabilityTest, ActivatingItAgainChangesNothing) {
  toggle_reachability();
  settle();
  advance(3);
  manager()._handleReachabilityActivated();
  EXPECT_TRUE(is_at_rest());
  toggle_reachability();
  toggle_reachability();
  // Beyond the first eight seconds.
  advance(4);
  EXPECT_TRUE(is_active());
  toggle_reachability();
  advance(0.1);
  manager()._handleReachabilityDeactivated();
  advance(0.1);
  EXPECT_TRUE(is_there(kBehindScreenLevel));
  settle();
  EXPECT_FALSE(is_there(kBehindScreenLevel));
}

TEST_F(ReachabilityTest, ItsTimeStartsAgainWithEachMovementDown) {
  toggle_reachability();
  advance(5);
  toggle_reachability();
  advance(1);
  toggle_reachability();
  advance(7.9);
  EXPECT_TRUE(is_active());
}

TEST_F(ReachabilityTest, ActivatedOnItsWayBackItHasOneWallpaper) {
  toggle_reachability();
  settle();
  toggle_reachability();
  advance(0.1);
  toggle_reachability();
  EXPECT_EQ(count_of(kBehindScreenLevel), 1);
  EXPECT_EQ(way_down(kBehindScreenLevel), 0);
  EXPECT_EQ(count_of(kLockScreenLevel - 1), 1);
}

TEST_F(ReachabilityTest, OnlyTheLastMovementBackRemovesEverything) {
  toggle_reachability();
  settle();
  toggle_reachability();
  advance(0.05);
  toggle_reachability();
  advance(0.25);
  toggle_reachability();
  // The first movement back and the second movement down would have ended meanwhile.
  advance(0.34);
  EXPECT_TRUE(is_there(kBehindScreenLevel));
  settle();
  EXPECT_FALSE(is_there(kBehindScreenLevel));
}

int times_fired = 0;

TEST_F(ReachabilityTest, TheTimerSendsAMessageThatExtensionsMayReplace) {
  const auto method =
      class_getInstanceMethod(SBReachabilityManager::cls(), "_keepAliveTimerFired:"_sel);
  const auto before = method_setImplementation(
      method, reinterpret_cast<objc::Imp>(+[](objc::Id, objc::Sel, objc::Id) { ++times_fired; }));
  toggle_reachability();
  advance(8.1);
  method_setImplementation(method, before);
  EXPECT_EQ(times_fired, 1);
}

TEST_F(ReachabilityTest, ARelaunchEndsItAtAnyMoment) {
  for (const double moment : {0.1, 2.0, 2.1}) {
    toggle_reachability();
    if (moment > 2) toggle_reachability();
    advance(moment);
    launch();
    advance(10);
    EXPECT_FALSE(is_active());
    EXPECT_EQ(CGRect(SBUIController::sharedInstance().window().frame()).min_y(), 0);
    EXPECT_TRUE(is_at_rest());
  }
}

TEST_F(ReachabilityTest, HomeSendsItBackAndDoesNothingElse) {
  SBIconController::sharedInstance().scrollToIconListAtIndex(1, NO);
  toggle_reachability();
  settle();
  press_home();
  EXPECT_FALSE(is_active());
  EXPECT_EQ(SBIconController::sharedInstance().currentIconListIndex(), 1);
}

TEST_F(ReachabilityTest, LockingSendsItBack) {
  toggle_reachability();
  settle();
  press_lock();
  EXPECT_FALSE(is_active());
}

TEST_F(ReachabilityTest, ATapAboveTheScreenSendsItBack) {
  toggle_reachability();
  settle();
  tap({middle().x, 100});
  settle();
  EXPECT_FALSE(is_active());
  press(on_screen(kCalendar));
  EXPECT_TRUE(icon_view(kCalendar).isHighlighted());
}

TEST_F(ReachabilityTest, TheWallpaperIsBehindItAndIsRemovedWithIt) {
  const auto count = uikit::visible_windows().size();
  toggle_reachability();
  settle();
  EXPECT_EQ(uikit::visible_windows().front().windowLevel(), kBehindScreenLevel);
  EXPECT_EQ(CGRect(uikit::visible_windows().front().frame()).min_y(), 0);
  toggle_reachability();
  settle();
  EXPECT_EQ(uikit::visible_windows().size(), count);
}

TEST_F(ReachabilityTest, TwoTouchesOfHomeMoveTheScreenDownAndBack) {
  EXPECT_TRUE(double_touch_home());
  EXPECT_TRUE(is_active());
  EXPECT_TRUE(double_touch_home());
  EXPECT_FALSE(is_active());
}

TEST_F(ReachabilityTest, ItIsNotAvailableOnALockedOrDarkPhone) {
  press_lock();
  EXPECT_TRUE(double_touch_home());
  EXPECT_FALSE(is_active());
  EXPECT_FALSE(display().is_on());
  press_lock();
  EXPECT_TRUE(double_touch_home());
  EXPECT_FALSE(is_active());
}

class TabletReachabilityTest : public SurfaceTest {
 protected:
  TabletReachabilityTest() : SurfaceTest("iPad4,1") {}
};

TEST_F(TabletReachabilityTest, ATabletDoesNotSupportIt) {
  EXPECT_FALSE(SBReachabilityManager::reachabilitySupported());
  EXPECT_FALSE(double_touch_home());
}

}  // namespace
}  // namespace host::springboard
