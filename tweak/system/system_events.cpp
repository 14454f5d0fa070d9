#include "tweak/system/system_events.h"

#include "platform/Foundation/NSSet.h"
#include "platform/SpringBoard/SBControlCenterController.h"
#include "platform/UIKit/UITouch.h"
#include "tweak/Sonavue2.h"
#include "tweak/motion/icon_home.h"
#include "tweak/motion/movement.h"
#include "tweak/preferences/preferences.h"
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

void dismiss_control_center() {
  SBControlCenterController::sharedInstance().dismissAnimated(NO);
}

}  // namespace

// A touch on the Music icon leaves its home frame behind, before any drag begins. While the panel
// closes the icon can be touched where it is not at home.

void touches_began_on_icon(SBIconView self, NSSet touches, UIEvent event) {
  original<&touches_began_on_icon>(self, touches, event);
  const auto touch = objc::cast<UITouch>(event.allTouches().anyObject());
  const UIView touched = touch.view();
  if (touched && touched == musicIcon && !icon_is_away()) keep_icon_home();
}

// The Home button only closes the panel while it is up.

BOOL home_button_clicked(objc::Object self) {
  if (!panel_is_up()) return original<&home_button_clicked>(self);
  close_panel();
  return YES;
}

BOOL home_button_clicked_twice(objc::Object self) {
  if (!panel_is_up()) return original<&home_button_clicked_twice>(self);
  close_panel();
  return YES;
}

void banner_presented(objc::Object self, objc::Object context, NSInteger reason) {
  close_panel_if_up();
  original<&banner_presented>(self, context, reason);
}

// These four let the system go first.

void display_turned_off(objc::Object self) {
  original<&display_turned_off>(self);
  close_panel_if_up();
}

void unlock_prepared(objc::Object self) {
  original<&unlock_prepared>(self);
  close_panel_if_up();
}

void notification_center_shown(objc::Object self) {
  original<&notification_center_shown>(self);
  close_panel_if_up();
}

// It cannot open over the full panel, and takes the place of a banner that is fully down. A
// banner on the move is left alone, and so is the control centre then.
void control_center_shown(objc::Object self) {
  original<&control_center_shown>(self);
  if (isShow) dismiss_control_center();
  if (isBanner && window.frame().origin.y == 0) {
    objc::send<>(Spring, "dismissBanner"_sel);
    dismiss_control_center();
  }
}

// Reachability moves the whole screen, so the panel goes without asking whether it is up.

BOOL reachability_is_supported(objc::Object self) {
  return original<&reachability_is_supported>(self);
}

void reachability_went_down(objc::Object self) {
  original<&reachability_went_down>(self);
  close_panel();
}

void reachability_came_up(objc::Object self) {
  original<&reachability_came_up>(self);
  close_panel();
}

void time_changed(objc::Object self) {
  original<&time_changed>(self);
  close_panel();
}

void kept_alive(objc::Object self, objc::Object timer) {
  original<&kept_alive>(self, timer);
  close_panel();
}

// The ring follows the volume. The system's own handler is left out on purpose: nothing else is to
// happen on a press of the volume buttons.

void volume_changed(SBMediaController self, objc::Object) {
  if (preference_equals(preference::play(), "volume"_ns, "volume"_ns))
    ring.setProgress(self.volume(), YES);
}

// Every window may show above the lock screen, so that the panel's can.

BOOL window_is_secure(UIWindow) {
  return YES;
}

void playback_state_changed(MPMusicPlayerController self, NSInteger state) {
  original<&playback_state_changed>(self, state);
  playbackState = static_cast<int>(state);
}

}  // namespace sonavue
