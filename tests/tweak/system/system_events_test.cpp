#include "host/springboard/system/system_actions.h"
#include "platform/SpringBoard/SBBannerController.h"
#include "platform/SpringBoard/SBControlCenterController.h"
#include "platform/SpringBoard/SBReachabilityManager.h"
#include "platform/SpringBoard/SBUIController.h"
#include "platform/UIKit/UIWindow.h"
#include "tests/tweak/method_spy.h"
#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

class SystemEvents : public PanelTest {
 protected:
  void SetUp() override { launch(); }
  SBUIController controller() const { return SBUIController::sharedInstance(); }
};

TEST_F(SystemEvents, WithAClosedPanelTheHomeButtonIsTheSystems) {
  MethodSpy<"dismisWithNoAction", void(SpringBoard)> closed(SpringBoard::cls());
  SBIconController::sharedInstance().scrollToIconListAtIndex(1, NO);
  springboard::press_home();
  settle();
  EXPECT_EQ(SBIconController::sharedInstance().currentIconListIndex(), 0);
  springboard::double_press_home();
  settle();
  EXPECT_TRUE(controller().isAppSwitcherShowing());
  EXPECT_EQ(closed.count(), 0);
}

TEST_F(SystemEvents, OnAnOpenPanelTheHomeButtonOnlyClosesIt) {
  open_panel();
  SBIconController::sharedInstance().setIsEditing(NO);
  EXPECT_EQ(controller().clickedMenuButton(), YES);
  settle();
  EXPECT_FALSE(is("isShow"));
  EXPECT_EQ(SBIconController::sharedInstance().currentIconListIndex(), 0);
}

TEST_F(SystemEvents, TheHomeButtonDoesNotReachTheHomeScreenBehindABanner) {
  MethodSpy<"dismissBanner", void(SpringBoard)> sent_away(SpringBoard::cls());
  SBIconController::sharedInstance().scrollToIconListAtIndex(1, NO);
  global<BOOL>("isBanner") = YES;
  EXPECT_EQ(controller().clickedMenuButton(), YES);
  settle();
  EXPECT_EQ(SBIconController::sharedInstance().currentIconListIndex(), 1);
  EXPECT_EQ(sent_away.count(), 1);
  EXPECT_FALSE(is("isBanner"));
  global<BOOL>("isBanner") = YES;
  EXPECT_EQ(controller().handleMenuDoubleTap(), YES);
  settle();
  EXPECT_EQ(sent_away.count(), 2);
  EXPECT_FALSE(controller().isAppSwitcherShowing());
}

TEST_F(SystemEvents, ADoublePressClosesThePanelAndOpensNoSwitcher) {
  open_panel();
  EXPECT_EQ(controller().handleMenuDoubleTap(), YES);
  settle();
  EXPECT_FALSE(is("isShow"));
  EXPECT_FALSE(controller().isAppSwitcherShowing());
}

TEST_F(SystemEvents, ATouchOnTheMusicIconSavesItsHomeFrame) {
  global<CGRect>("saved") = {};
  press(on_screen(kMusic));
  EXPECT_EQ(global<CGRect>("saved"), music_icon().frame());
}

TEST_F(SystemEvents, ATouchOnAnotherIconSavesNothing) {
  const CGRect before{1, 2, 3, 4};
  global<CGRect>("saved") = before;
  press(on_screen(kCalendar));
  EXPECT_EQ(global<CGRect>("saved"), before);
  EXPECT_TRUE(icon_view(kCalendar).isHighlighted());
}

TEST_F(SystemEvents, TheIconReceivesItsTouchFirst) {
  press(on_screen(kMusic));
  EXPECT_TRUE(music_icon().isHighlighted());
}

TEST_F(SystemEvents, TheStateThatThePlayerReportsIsKept) {
  const auto player = MPMusicPlayerController::iPodMusicPlayer();
  player._playbackStateDidChange(5);
  EXPECT_EQ(global<int>("playbackState"), 5);
  player._playbackStateDidChange(2);
  EXPECT_EQ(global<int>("playbackState"), 2);
}

TEST_F(SystemEvents, EveryOtherEventOfTheSystemClosesThePanel) {
  const std::function<void()> events[] = {
      [] { springboard::present_banner("a message"); },
      [] { springboard::present_notification_centre(); },
      [] { springboard::toggle_reachability(); },
  };
  for (const auto& event : events) {
    open_panel();
    event();
    settle();
    EXPECT_FALSE(is("isShow"));
    springboard::press_home();
    settle();
    advance(10);
    if (SBReachabilityManager::sharedInstance().reachabilityModeActive())
      springboard::toggle_reachability();
    settle();
  }
}

TEST_F(SystemEvents, TheControlCentreCannotOpenOverThePanel) {
  open_panel();
  springboard::present_control_centre();
  EXPECT_FALSE(SBControlCenterController::sharedInstance().isPresented());
  settle();
  EXPECT_TRUE(is("isShow"));
}

TEST_F(SystemEvents, AMovingBannerDoesNotAffectTheControlCentre) {
  MethodSpy<"dismissBanner", void(SpringBoard)> sent_away(SpringBoard::cls());
  global<BOOL>("isBanner") = YES;
  for (const CGFloat y : {-200.0, -0.5, 0.5}) {
    view("window").setFrame({0, y, screen().width, screen().height});
    springboard::present_control_centre();
    settle();
    EXPECT_TRUE(SBControlCenterController::sharedInstance().isPresented()) << y;
    SBControlCenterController::sharedInstance().dismissAnimated(NO);
  }
  EXPECT_EQ(sent_away.count(), 0);
}

TEST_F(SystemEvents, ReachabilityHasNoEffectOnAClosedPanel) {
  MethodSpy<"dismisWithNoAction", void(SpringBoard)> asked(SpringBoard::cls());
  MethodSpy<"dismis:", void(SpringBoard, objc::Object)> closed(SpringBoard::cls());
  const auto manager = SBReachabilityManager::sharedInstance();
  manager._handleReachabilityActivated();
  manager._handleReachabilityDeactivated();
  manager._handleSignificantTimeChanged();
  manager._keepAliveTimerFired(nil);
  EXPECT_EQ(asked.count(), 4);
  EXPECT_EQ(closed.count(), 0);
}

TEST_F(SystemEvents, EveryWindowCanShowOverTheLockScreen) {
  EXPECT_EQ(global<UIWindow>("window")._shouldCreateContextAsSecure(), YES);
  EXPECT_EQ(controller().window()._shouldCreateContextAsSecure(), YES);
}

}  // namespace
}  // namespace host::test
