#include "tweak/system_events.h"

#include "platform/Foundation/NSSet.h"
#include "platform/SpringBoard/SBControlCenterController.h"
#include "platform/UIKit/UITouch.h"
#include "tweak/globals.h"
#include "tweak/method.h"
#include "tweak/movement/icon_home.h"
#include "tweak/movement/movement.h"
#include "tweak/preferences.h"

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

Replaced<void(SBIconView, NSSet, UIEvent)> touches_began;

void touches_began_on_icon(SBIconView self, NSSet touches, UIEvent event) {
  touches_began(self, "touchesBegan:withEvent:"_sel, touches, event);
  const auto touch = objc::cast<UITouch>(event.allTouches().anyObject());
  const UIView touched = touch.view();
  if (touched && touched == musicIcon && !icon_is_away()) keep_icon_home();
}

// The Home button only closes the panel while it is up.

Replaced<BOOL(objc::Object)> clicked_menu_button;
Replaced<BOOL(objc::Object)> menu_double_tap;

BOOL home_button_clicked(objc::Object self) {
  if (!panel_is_up()) return clicked_menu_button(self, "clickedMenuButton"_sel);
  close_panel();
  return YES;
}

BOOL home_button_clicked_twice(objc::Object self) {
  if (!panel_is_up()) return menu_double_tap(self, "handleMenuDoubleTap"_sel);
  close_panel();
  return YES;
}

Replaced<void(objc::Object, objc::Object, NSInteger)> present_banner;

void banner_presented(objc::Object self, objc::Object context, NSInteger reason) {
  close_panel_if_up();
  present_banner(self, "_presentBannerForContext:reason:"_sel, context, reason);
}

// These four let the system go first.

Replaced<void(objc::Object)> display_turned_off;
Replaced<void(objc::Object)> prepare_for_unlock;
Replaced<void(objc::Object)> notification_center_will_present;
Replaced<void(objc::Object)> control_center_will_present;

void display_turned_off_too(objc::Object self) {
  display_turned_off(self, "_handleDisplayTurnedOff"_sel);
  close_panel_if_up();
}

void unlock_prepared(objc::Object self) {
  prepare_for_unlock(self, "prepareForUIUnlock"_sel);
  close_panel_if_up();
}

void notification_center_shown(objc::Object self) {
  notification_center_will_present(self, "hostWillPresent"_sel);
  close_panel_if_up();
}

void dismiss_control_center() {
  SBControlCenterController::sharedInstance().dismissAnimated(NO);
}

// It cannot open over the full panel, and takes the place of a banner that is fully down. A
// banner on the move is left alone, and so is the control centre then.
void control_center_shown(objc::Object self) {
  control_center_will_present(self, "controlCenterWillPresent"_sel);
  if (isShow) dismiss_control_center();
  if (isBanner && window.frame().origin.y == 0) {
    objc::send<>(Spring, "dismissBanner"_sel);
    dismiss_control_center();
  }
}

// Reachability moves the whole screen, so the panel goes without asking whether it is up.

Replaced<BOOL(objc::Object)> reachability_supported;
Replaced<void(objc::Object)> reachability_deactivated;
Replaced<void(objc::Object)> reachability_activated;
Replaced<void(objc::Object)> significant_time_changed;
Replaced<void(objc::Object, objc::Object)> keep_alive_timer_fired;

BOOL reachability_is_supported(objc::Object self) {
  return reachability_supported(self, "reachabilitySupported"_sel);
}

void reachability_went_down(objc::Object self) {
  reachability_deactivated(self, "_handleReachabilityDeactivated"_sel);
  close_panel();
}

void reachability_came_up(objc::Object self) {
  reachability_activated(self, "_handleReachabilityActivated"_sel);
  close_panel();
}

void time_changed(objc::Object self) {
  significant_time_changed(self, "_handleSignificantTimeChanged"_sel);
  close_panel();
}

void kept_alive(objc::Object self, objc::Object timer) {
  keep_alive_timer_fired(self, "_keepAliveTimerFired:"_sel, timer);
  close_panel();
}

// The ring follows the volume. The system's own handler is left out on purpose: nothing else is to
// happen on a press of the volume buttons.

Replaced<void(SBMediaController, objc::Object)> system_volume_changed;

void volume_changed(SBMediaController self, objc::Object) {
  if (preference_equals("play"_ns, "volume"_ns, "volume"_ns)) ring.setProgress(self.volume(), YES);
}

// Every window may show above the lock screen, so that the panel's can.

Replaced<BOOL(UIWindow)> should_create_context_as_secure;

BOOL always_secure(UIWindow) {
  return YES;
}

Replaced<void(MPMusicPlayerController, int)> playback_state_did_change;

void playback_state_changed(MPMusicPlayerController self, int state) {
  playback_state_did_change(self, "_playbackStateDidChange:"_sel, state);
  playbackState = state;
}

}  // namespace

void hook_system_events() {
  const objc::Class icon_view = objc_getClass("SBIconView");
  const objc::Class controller = objc_getClass("SBUIController");
  const objc::Class banners = objc_getClass("SBBannerController");
  const objc::Class lock_screen = objc_getClass("SBLockScreenViewController");
  const objc::Class notifications = objc_getClass("SBNotificationCenterViewController");
  const objc::Class control_center = objc_getClass("SBControlCenterContainerView");
  const objc::Class reach = objc_getClass("SBReachabilityManager");
  const objc::Class reach_class =
      reach ? objc::class_of(reinterpret_cast<objc::Id>(reach)) : nullptr;
  const objc::Class media = objc_getClass("SBMediaController");
  const objc::Class windows = objc_getClass("UIWindow");
  const objc::Class player = objc_getClass("MPMusicPlayerController");

  replace<&touches_began_on_icon>(icon_view, "touchesBegan:withEvent:", touches_began);
  replace<&home_button_clicked>(controller, "clickedMenuButton", clicked_menu_button);
  replace<&home_button_clicked_twice>(controller, "handleMenuDoubleTap", menu_double_tap);
  replace<&banner_presented>(banners, "_presentBannerForContext:reason:", present_banner);
  replace<&display_turned_off_too>(lock_screen, "_handleDisplayTurnedOff", display_turned_off);
  replace<&unlock_prepared>(lock_screen, "prepareForUIUnlock", prepare_for_unlock);
  replace<&notification_center_shown>(notifications, "hostWillPresent",
                                      notification_center_will_present);
  replace<&control_center_shown>(control_center, "controlCenterWillPresent",
                                 control_center_will_present);
  replace<&reachability_is_supported>(reach_class, "reachabilitySupported", reachability_supported);
  replace<&reachability_went_down>(reach, "_handleReachabilityDeactivated",
                                   reachability_deactivated);
  replace<&reachability_came_up>(reach, "_handleReachabilityActivated", reachability_activated);
  replace<&time_changed>(reach, "_handleSignificantTimeChanged", significant_time_changed);
  replace<&kept_alive>(reach, "_keepAliveTimerFired:", keep_alive_timer_fired);
  replace<&volume_changed>(media, "_systemVolumeChanged:", system_volume_changed);
  replace<&always_secure>(windows, "_shouldCreateContextAsSecure", should_create_context_as_secure);
  replace<&playback_state_changed>(player, "_playbackStateDidChange:", playback_state_did_change);
}

}  // namespace sonavue
