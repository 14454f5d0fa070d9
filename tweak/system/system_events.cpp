#include "tweak/system/system_events.h"

#include "objc/hook.h"
#include "platform/Foundation/NSSet.h"
#include "platform/SpringBoard/SBControlCenterController.h"
#include "platform/UIKit/UITouch.h"
#include "tweak/Sonavue2.h"
#include "tweak/motion/icon_home.h"
#include "tweak/motion/movement.h"
#include "tweak/preferences/preferences.h"

namespace sonavue {
namespace {

// Shown, or on its way.
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

// A touch on the Music icon saves its home frame before a drag can begin, but only while the icon
// is in its slot: during closing it can be touched elsewhere.

void touches_began_on_icon(SBIconView self, NSSet touches, UIEvent event) {
  objc::original<&touches_began_on_icon>(self, touches, event);
  const auto touch = objc::cast<UITouch>(event.allTouches().anyObject());
  const UIView touched = touch.view();
  if (touched && touched == musicIcon && !icon_is_away()) save_icon_home();
}

// While the panel is shown, the Home button only closes it.

BOOL home_button_clicked(objc::Object self) {
  if (!panel_is_up()) return objc::original<&home_button_clicked>(self);
  close_panel();
  return YES;
}

BOOL home_button_clicked_twice(objc::Object self) {
  if (!panel_is_up()) return objc::original<&home_button_clicked_twice>(self);
  close_panel();
  return YES;
}

void banner_presented(objc::Object self, objc::Object context, NSInteger reason) {
  close_panel_if_up();
  objc::original<&banner_presented>(self, context, reason);
}

// The next four call the system's method first.

void display_turned_off(objc::Object self) {
  objc::original<&display_turned_off>(self);
  close_panel_if_up();
}

void unlock_prepared(objc::Object self) {
  objc::original<&unlock_prepared>(self);
  close_panel_if_up();
}

void notification_center_shown(objc::Object self) {
  objc::original<&notification_center_shown>(self);
  close_panel_if_up();
}

// The control centre cannot open over the full panel. It also closes a banner that is fully down,
// and is itself dismissed. While a banner moves, both are left alone.
void control_center_shown(objc::Object self) {
  objc::original<&control_center_shown>(self);
  if (isShow) dismiss_control_center();
  if (isBanner && window.frame().origin.y == 0) {
    objc::send<>(Spring, "dismissBanner"_sel);
    dismiss_control_center();
  }
}

// Reachability moves the whole screen, so these close the panel without checking whether it is
// shown.

BOOL reachability_is_supported(objc::Object self) {
  return objc::original<&reachability_is_supported>(self);
}

void reachability_deactivated(objc::Object self) {
  objc::original<&reachability_deactivated>(self);
  close_panel();
}

void reachability_activated(objc::Object self) {
  objc::original<&reachability_activated>(self);
  close_panel();
}

void time_changed(objc::Object self) {
  objc::original<&time_changed>(self);
  close_panel();
}

void kept_alive(objc::Object self, objc::Object timer) {
  objc::original<&kept_alive>(self, timer);
  close_panel();
}

// The ring follows the volume. The system's own handler is deliberately not called: nothing else
// happens when the volume changes.

void volume_changed(SBMediaController self, objc::Object) {
  if (preference_equals(preference::play(), "volume"_ns, "volume"_ns))
    ring.setProgress(self.volume(), YES);
}

// Lets the panel's window, and with it every window, show above the lock screen.

BOOL window_is_secure(UIWindow) {
  return YES;
}

void playback_state_changed(MPMusicPlayerController self, NSInteger state) {
  objc::original<&playback_state_changed>(self, state);
  playbackState = static_cast<int>(state);
}

}  // namespace sonavue
