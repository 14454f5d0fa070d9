#include "tweak/system/system_events.h"

#include "platform/Foundation/NSSet.h"
#include "platform/SpringBoard/SBControlCenterController.h"
#include "platform/UIKit/UITouch.h"
#include "tweak/Sonavue2.h"
#include "tweak/motion/icon_home.h"
#include "tweak/motion/movement.h"
#include "tweak/preferences/get_pref.h"
#include "tweak/system/methods.h"

namespace sonavue {
namespace {

// Up, or on its way there.
bool panel_is_up() {
  return isShow || isBanner || icon_is_away();
}

void close_panel() {
  objc::send<>(Spring, "dismisWithNoAction"_sel);
}

void close_panel_if_up() {
  if (panel_is_up()) close_panel();
}

// A touch on the Music icon leaves its home frame behind, before any drag begins. While the panel
// closes the icon can be touched where it is not at home.

using TouchesBegan =
    Replaced<"SBIconView", "touchesBegan:withEvent:", void(SBIconView, NSSet, UIEvent)>;

void touches_began_on_icon(SBIconView self, NSSet touches, UIEvent event) {
  TouchesBegan::original(self, touches, event);
  const auto touch = objc::cast<UITouch>(event.allTouches().anyObject());
  const UIView touched = touch.view();
  if (touched && touched == musicIcon && !icon_is_away()) keep_icon_home();
}

// The Home button only closes the panel while it is up.

using ClickedMenuButton = Replaced<"SBUIController", "clickedMenuButton", BOOL(objc::Object)>;
using MenuDoubleTap = Replaced<"SBUIController", "handleMenuDoubleTap", BOOL(objc::Object)>;

BOOL home_button_clicked(objc::Object self) {
  if (!panel_is_up()) return ClickedMenuButton::original(self);
  close_panel();
  return YES;
}

BOOL home_button_clicked_twice(objc::Object self) {
  if (!panel_is_up()) return MenuDoubleTap::original(self);
  close_panel();
  return YES;
}

using PresentBanner =
    Replaced<"SBBannerController",
             "_presentBannerForContext:reason:", void(objc::Object, objc::Object, NSInteger)>;

void banner_presented(objc::Object self, objc::Object context, NSInteger reason) {
  close_panel_if_up();
  PresentBanner::original(self, context, reason);
}

// These four let the system go first.

using DisplayTurnedOff =
    Replaced<"SBLockScreenViewController", "_handleDisplayTurnedOff", void(objc::Object)>;
using PrepareForUnlock =
    Replaced<"SBLockScreenViewController", "prepareForUIUnlock", void(objc::Object)>;
using NotificationCenterWillPresent =
    Replaced<"SBNotificationCenterViewController", "hostWillPresent", void(objc::Object)>;
using ControlCenterWillPresent =
    Replaced<"SBControlCenterContainerView", "controlCenterWillPresent", void(objc::Object)>;

void display_turned_off_too(objc::Object self) {
  DisplayTurnedOff::original(self);
  close_panel_if_up();
}

void unlock_prepared(objc::Object self) {
  PrepareForUnlock::original(self);
  close_panel_if_up();
}

void notification_center_shown(objc::Object self) {
  NotificationCenterWillPresent::original(self);
  close_panel_if_up();
}

void dismiss_control_center() {
  SBControlCenterController::sharedInstance().dismissAnimated(NO);
}

// It cannot open over the full panel, and takes the place of a banner that is fully down. A
// banner on the move is left alone, and so is the control centre then.
void control_center_shown(objc::Object self) {
  ControlCenterWillPresent::original(self);
  if (isShow) dismiss_control_center();
  if (isBanner && window.frame().origin.y == 0) {
    objc::send<>(Spring, "dismissBanner"_sel);
    dismiss_control_center();
  }
}

// Reachability moves the whole screen, so the panel goes without asking whether it is up.

using ReachabilitySupported =
    Replaced<"SBReachabilityManager", "reachabilitySupported", BOOL(objc::Object), true>;
using ReachabilityDeactivated =
    Replaced<"SBReachabilityManager", "_handleReachabilityDeactivated", void(objc::Object)>;
using ReachabilityActivated =
    Replaced<"SBReachabilityManager", "_handleReachabilityActivated", void(objc::Object)>;
using SignificantTimeChanged =
    Replaced<"SBReachabilityManager", "_handleSignificantTimeChanged", void(objc::Object)>;
using KeepAliveTimerFired =
    Replaced<"SBReachabilityManager", "_keepAliveTimerFired:", void(objc::Object, objc::Object)>;

BOOL reachability_is_supported(objc::Object self) {
  return ReachabilitySupported::original(self);
}

void reachability_went_down(objc::Object self) {
  ReachabilityDeactivated::original(self);
  close_panel();
}

void reachability_came_up(objc::Object self) {
  ReachabilityActivated::original(self);
  close_panel();
}

void time_changed(objc::Object self) {
  SignificantTimeChanged::original(self);
  close_panel();
}

void kept_alive(objc::Object self, objc::Object timer) {
  KeepAliveTimerFired::original(self, timer);
  close_panel();
}

// The ring follows the volume. The system's own handler is left out on purpose: nothing else is to
// happen on a press of the volume buttons.

using SystemVolumeChanged =
    Replaced<"SBMediaController", "_systemVolumeChanged:", void(SBMediaController, objc::Object)>;

void volume_changed(SBMediaController self, objc::Object) {
  if (preference_equals("play"_ns, "volume"_ns, "volume"_ns)) ring.setProgress(self.volume(), YES);
}

// Every window may show above the lock screen, so that the panel's can.

using ShouldCreateContextAsSecure =
    Replaced<"UIWindow", "_shouldCreateContextAsSecure", BOOL(UIWindow)>;

BOOL always_secure(UIWindow) {
  return YES;
}

using PlaybackStateDidChange =
    Replaced<"MPMusicPlayerController",
             "_playbackStateDidChange:", void(MPMusicPlayerController, NSInteger)>;

void playback_state_changed(MPMusicPlayerController self, NSInteger state) {
  PlaybackStateDidChange::original(self, state);
  playbackState = static_cast<int>(state);
}

}  // namespace

void hook_system_events() {
  TouchesBegan::replace_with<&touches_began_on_icon>();
  ClickedMenuButton::replace_with<&home_button_clicked>();
  MenuDoubleTap::replace_with<&home_button_clicked_twice>();
  PresentBanner::replace_with<&banner_presented>();
  DisplayTurnedOff::replace_with<&display_turned_off_too>();
  PrepareForUnlock::replace_with<&unlock_prepared>();
  NotificationCenterWillPresent::replace_with<&notification_center_shown>();
  ControlCenterWillPresent::replace_with<&control_center_shown>();
  ReachabilitySupported::replace_with<&reachability_is_supported>();
  ReachabilityDeactivated::replace_with<&reachability_went_down>();
  ReachabilityActivated::replace_with<&reachability_came_up>();
  SignificantTimeChanged::replace_with<&time_changed>();
  KeepAliveTimerFired::replace_with<&kept_alive>();
  SystemVolumeChanged::replace_with<&volume_changed>();
  ShouldCreateContextAsSecure::replace_with<&always_secure>();
  PlaybackStateDidChange::replace_with<&playback_state_changed>();
}

}  // namespace sonavue
