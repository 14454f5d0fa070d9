#include "host/springboard/system/system_actions.h"
#include "platform/SpringBoard/SBBannerController.h"
#include "platform/SpringBoard/SBControlCenterContainerView.h"
#include "platform/SpringBoard/SBControlCenterController.h"
#include "platform/SpringBoard/SBReachabilityManager.h"
#include "tests/support/phone_fixture.h"

namespace host::springboard {
namespace {

using namespace test;

class SurfacesTest : public PhoneTest {};
class ShortPhoneSurfacesTest : public PhoneTest {
 public:
  ShortPhoneSurfacesTest() : PhoneTest("iPhone5,1") {}
};

TEST_F(SurfacesTest, EveryClassAndMethodThatExtensionsReplaceExists) {
  const struct {
    const char* class_name;
    const char* selector;
  } replaced[] = {
      {"SpringBoard", "applicationDidFinishLaunching:"},
      {"SBIconView", "touchesBegan:withEvent:"},
      {"SBUIController", "clickedMenuButton"},
      {"SBUIController", "handleMenuDoubleTap"},
      {"SBBannerController", "_presentBannerForContext:reason:"},
      {"SBLockScreenViewController", "_handleDisplayTurnedOff"},
      {"SBLockScreenViewController", "prepareForUIUnlock"},
      {"SBNotificationCenterViewController", "hostWillPresent"},
      {"SBControlCenterContainerView", "controlCenterWillPresent"},
      {"SBReachabilityManager", "_handleReachabilityDeactivated"},
      {"SBReachabilityManager", "_handleReachabilityActivated"},
      {"SBReachabilityManager", "_handleSignificantTimeChanged"},
      {"SBReachabilityManager", "_keepAliveTimerFired:"},
  };
  for (const auto& [class_name, selector] : replaced) {
    const objc::Class cls = objc_getClass(class_name);
    ASSERT_TRUE(cls) << class_name;
    EXPECT_TRUE(class_getInstanceMethod(cls, sel_registerName(selector))) << selector;
  }
}

TEST_F(SurfacesTest, TheControlCentreIsPresentedUntilItIsDismissed) {
  const auto centre = SBControlCenterController::sharedInstance();
  present_control_centre();
  EXPECT_TRUE(centre.isPresented());
  centre.dismissAnimated(NO);
  EXPECT_FALSE(centre.isPresented());
}

TEST_F(SurfacesTest, ABannerShowsUntilANilOneRemovesIt) {
  present_banner("Rain at noon");
  EXPECT_TRUE(SBBannerController::sharedInstance().isShowingBanner());
  SBBannerController::sharedInstance()._presentBannerForContext(nil, 0);
  EXPECT_FALSE(SBBannerController::sharedInstance().isShowingBanner());
}

TEST_F(SurfacesTest, ReachabilityTogglesOnATallPhone) {
  const auto manager = SBReachabilityManager::sharedInstance();
  EXPECT_TRUE(toggle_reachability());
  EXPECT_TRUE(manager.reachabilityModeActive());
  EXPECT_TRUE(toggle_reachability());
  EXPECT_FALSE(manager.reachabilityModeActive());
  toggle_reachability();
  manager._keepAliveTimerFired(nil);
  EXPECT_FALSE(manager.reachabilityModeActive());
}

TEST_F(ShortPhoneSurfacesTest, AShortPhoneHasNoReachability) {
  EXPECT_FALSE(SBReachabilityManager::reachabilitySupported());
  EXPECT_FALSE(toggle_reachability());
  EXPECT_FALSE(double_touch_home());
}

}  // namespace
}  // namespace host::springboard
