#include "host/springboard/common/configuration.h"
#include "host/springboard/common/shared_instance.h"
#include "host/springboard/surfaces/banner_controller.h"
#include "host/springboard/surfaces/control_centre.h"
#include "host/springboard/surfaces/display.h"
#include "host/springboard/surfaces/lock_screen.h"
#include "host/springboard/surfaces/notification_centre.h"
#include "host/springboard/surfaces/surfaces.h"
#include "host/springboard/surfaces/volume_overlay.h"
#include "host/springboard/switcher/app_switcher.h"
#include "host/springboard/system/system_actions.h"
#include "platform/SpringBoard/SBMediaController.h"
#include "platform/SpringBoard/SBReachabilityManager.h"
#include "platform/SpringBoard/SBUIController.h"

namespace host::springboard {
namespace {

// Sixteen presses from silence to full volume.
constexpr float kVolumeStep = 1.0f / VolumeOverlay::kSteps;

/// Turns on a dark display. Returns false when it was already on.
bool wake_display() {
  if (display().is_on()) return false;
  lock_screen().wake();
  return true;
}

}  // namespace

void press_home() {
  if (!wake_display()) SBUIController::sharedInstance().clickedMenuButton();
}

void double_press_home() {
  if (!wake_display()) SBUIController::sharedInstance().handleMenuDoubleTap();
}

bool double_touch_home() {
  if (!SBReachabilityManager::reachabilitySupported()) return false;
  // A phone with a dark display is locked too.
  if (!is_locked() && !app_switcher().is_showing()) toggle_reachability();
  return true;
}

void press_lock() {
  if (!wake_display()) lock();
}

void press_volume(VolumeButton button) {
  const SBMediaController media = SBMediaController::sharedInstance();
  media._changeVolumeBy(button == VolumeButton::kUp ? kVolumeStep : -kVolumeStep);
  // The open control centre has its own volume slider, and a dark display shows nothing.
  const bool is_seen = display().is_on();
  if (is_seen && !SBControlCenterController::sharedInstance().isPresented())
    SharedPart<VolumeOverlay>::get().show(media.volume());
}

void present_banner(std::string_view text) {
  const Notification message{"Messages", std::string(text),
                             configuration().wall_clock->time_text()};
  notification_centre().add(message);
  if (is_locked()) {
    lock_screen().add(message);
  } else {
    banners().enqueue(message.text);
  }
}

void present_notification_centre() {
  open_notification_centre();
}

void present_control_centre() {
  SBControlCenterController::sharedInstance().presentAnimated(YES);
}

bool toggle_reachability() {
  if (!SBReachabilityManager::reachabilitySupported()) return false;
  const SBReachabilityManager manager = SBReachabilityManager::sharedInstance();
  if (manager.reachabilityModeActive()) {
    manager._handleReachabilityDeactivated();
  } else {
    manager._handleReachabilityActivated();
  }
  return true;
}

void lock() {
  // First, so that extensions notified of the lock find no finger on the screen.
  display().turn_off();
  SharedInstance<SBLockScreenViewController>::get()._handleDisplayTurnedOff();
}

void unlock() {
  lock_screen().unlock();
}

}  // namespace host::springboard
