#include "host/springboard/system/system_actions.h"
#include "platform/SpringBoard/SBBannerController.h"
#include "platform/SpringBoard/SBControlCenterContainerView.h"
#include "platform/SpringBoard/SBControlCenterController.h"
#include "platform/SpringBoard/SBLockScreenViewController.h"
#include "platform/SpringBoard/SBNotificationCenterViewController.h"
#include "platform/SpringBoard/SBReachabilityManager.h"
#include "tests/tweak/method_spy.h"
#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

using ::testing::ElementsAre;
using Heard = std::vector<std::string>;

/// Records, in order, the system's own methods that run at an event, below the extension's
/// replacements, and the messages that the extension sends.
class EventOrder : public PanelTest {
 protected:
  void SetUp() override {
    use_no_songs();
    launch();
    closed_.emplace(SpringBoard::cls(), &heard_);
  }

  Heard heard_at(const std::function<void()>& event) {
    heard_.clear();
    event();
    return heard_;
  }
  int closings() const { return closed_->count(); }

  Heard heard_;
  // These spy on the system's own methods: they are installed before the extension is loaded.
  MethodSpy<"_handleDisplayTurnedOff", void(SBLockScreenViewController)> turned_off_{
      SBLockScreenViewController::cls(), &heard_};
  MethodSpy<"prepareForUIUnlock", void(SBLockScreenViewController)> unlocked_{
      SBLockScreenViewController::cls(), &heard_};
  MethodSpy<"hostWillPresent", void(SBNotificationCenterViewController)> notifications_{
      SBNotificationCenterViewController::cls(), &heard_};
  MethodSpy<"controlCenterWillPresent", void(SBControlCenterContainerView)> control_centre_{
      SBControlCenterContainerView::cls(), &heard_};
  MethodSpy<"dismissAnimated:", void(SBControlCenterController, BOOL)> control_centre_dismissed_{
      SBControlCenterController::cls(), &heard_};
  MethodSpy<"_presentBannerForContext:reason:", void(SBBannerController, objc::Object, NSInteger)>
      banner_{SBBannerController::cls(), &heard_};
  MethodSpy<"_handleReachabilityActivated", void(SBReachabilityManager)> reached_{
      SBReachabilityManager::cls(), &heard_};
  MethodSpy<"_handleReachabilityDeactivated", void(SBReachabilityManager)> let_go_{
      SBReachabilityManager::cls(), &heard_};
  MethodSpy<"_handleSignificantTimeChanged", void(SBReachabilityManager)> time_changed_{
      SBReachabilityManager::cls(), &heard_};
  MethodSpy<"_keepAliveTimerFired:", void(SBReachabilityManager, objc::Object)> kept_alive_{
      SBReachabilityManager::cls(), &heard_};
  MethodSpy<"_playbackStateDidChange:", void(MPMusicPlayerController, NSInteger)> state_changed_{
      MPMusicPlayerController::cls(), &heard_};

 private:
  std::optional<MethodSpy<"dismisWithNoAction", void(SpringBoard)>> closed_;
};

/// The same events close both forms of the panel.
class EventOrderWithAForm : public EventOrder, public ::testing::WithParamInterface<const char*> {
 protected:
  Heard heard_at(const std::function<void()>& event) {
    global<BOOL>(GetParam()) = YES;
    return EventOrder::heard_at(event);
  }
};

std::string name_of_form(const ::testing::TestParamInfo<const char*>& info) {
  return info.param;
}
INSTANTIATE_TEST_SUITE_P(, EventOrderWithAForm, ::testing::Values("isShow", "isBanner"),
                         name_of_form);

TEST_P(EventOrderWithAForm, TheLockScreenActsFirstThenThePanelCloses) {
  EXPECT_THAT(heard_at(&springboard::lock),
              ElementsAre("_handleDisplayTurnedOff", "dismisWithNoAction"));
  EXPECT_THAT(heard_at(&springboard::unlock),
              ElementsAre("prepareForUIUnlock", "dismisWithNoAction"));
}

TEST_P(EventOrderWithAForm, TheNotificationCentreActsFirstThenThePanelCloses) {
  EXPECT_THAT(heard_at(&springboard::present_notification_centre),
              ElementsAre("hostWillPresent", "dismisWithNoAction"));
}

TEST_P(EventOrderWithAForm, ThePanelClosesBeforeTheSystemsBanner) {
  const auto context = NSString("a message"_ns);
  EXPECT_THAT(
      heard_at([&] { SBBannerController::sharedInstance()._presentBannerForContext(context, 7); }),
      ElementsAre("dismisWithNoAction", "_presentBannerForContext:reason:"));
  EXPECT_EQ(banner_.last(), std::tuple(objc::Object(context), NSInteger{7}));
}

TEST_P(EventOrderWithAForm, ThePlayersStateIsKept) {
  heard_at([&] { global<MPMusicPlayerController>("musicPlayer")._playbackStateDidChange(3); });
  EXPECT_EQ(global<int>("playbackState"), 3);
}

TEST_F(EventOrder, ThePanelDismissesTheControlCentreOnceItAppears) {
  global<BOOL>("isShow") = YES;
  EXPECT_THAT(heard_at(&springboard::present_control_centre),
              ElementsAre("controlCenterWillPresent", "dismissAnimated:"));
  EXPECT_EQ(std::get<0>(control_centre_dismissed_.last()), NO);
}

TEST_F(EventOrder, AFullyOpenBannerIsDismissedWithTheControlCentre) {
  const MethodSpy<"dismissBanner", void(SpringBoard)> sent_away(SpringBoard::cls(), &heard_);
  global<BOOL>("isBanner") = YES;
  ASSERT_EQ(frame("window").origin.y, 0);
  EXPECT_THAT(heard_at(&springboard::present_control_centre),
              ElementsAre("controlCenterWillPresent", "dismissBanner", "dismissAnimated:"));
  EXPECT_EQ(std::get<0>(control_centre_dismissed_.last()), NO);
  EXPECT_FALSE(SBControlCenterController::sharedInstance().isPresented());
}

TEST_F(EventOrder, ReachabilityActsFirst) {
  const auto manager = SBReachabilityManager::sharedInstance();
  EXPECT_THAT(heard_at([&] { manager._handleReachabilityActivated(); }),
              ElementsAre("_handleReachabilityActivated", "dismisWithNoAction"));
  EXPECT_THAT(heard_at([&] { manager._handleReachabilityDeactivated(); }),
              ElementsAre("_handleReachabilityDeactivated", "dismisWithNoAction"));
  EXPECT_THAT(heard_at([&] { manager._handleSignificantTimeChanged(); }),
              ElementsAre("_handleSignificantTimeChanged", "dismisWithNoAction"));
  EXPECT_THAT(heard_at([&] { manager._keepAliveTimerFired(manager); }),
              ElementsAre("_keepAliveTimerFired:", "dismisWithNoAction"));
  EXPECT_EQ(std::get<0>(kept_alive_.last()), manager);
}

TEST_F(EventOrder, AClosedPanelIsNotToldToClose) {
  springboard::lock();
  springboard::unlock();
  springboard::present_notification_centre();
  springboard::present_banner("a message");
  springboard::present_control_centre();
  EXPECT_THAT(heard_,
              ElementsAre("_handleDisplayTurnedOff", "prepareForUIUnlock", "hostWillPresent",
                          "_presentBannerForContext:reason:", "controlCenterWillPresent"));
  EXPECT_EQ(closings(), 0);
}

TEST_F(EventOrder, ThePlayersOwnMethodIsCalledToo) {
  EXPECT_THAT(
      heard_at([&] { global<MPMusicPlayerController>("musicPlayer")._playbackStateDidChange(3); }),
      ElementsAre("_playbackStateDidChange:"));
  EXPECT_EQ(std::get<0>(state_changed_.last()), 3);
}

const int* kept_state = nullptr;
int state_seen_by_system = 0;

TEST_F(PanelTest, ThePlayersStateIsKeptAfterTheSystemsMethod) {
  const auto see_state = +[](objc::Id, objc::Sel, int) { state_seen_by_system = *kept_state; };
  use_no_songs();
  method_setImplementation(
      class_getInstanceMethod(MPMusicPlayerController::cls(), "_playbackStateDidChange:"_sel),
      reinterpret_cast<objc::Imp>(see_state));
  load_extension();
  kept_state = &global<int>("playbackState");
  global<int>("playbackState") = 7;
  global<MPMusicPlayerController>("musicPlayer")._playbackStateDidChange(3);
  EXPECT_EQ(state_seen_by_system, 7);
  EXPECT_EQ(global<int>("playbackState"), 3);
}

}  // namespace
}  // namespace host::test
