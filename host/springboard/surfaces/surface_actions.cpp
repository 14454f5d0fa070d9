#include "host/springboard/model/strings.h"
#include "host/springboard/shared_instance.h"
#include "host/springboard/system_actions.h"
#include "platform/SpringBoard/SBBannerController.h"
#include "platform/SpringBoard/SBControlCenterController.h"
#include "platform/SpringBoard/SBLockScreenViewController.h"
#include "platform/SpringBoard/SBNotificationCenterViewController.h"
#include "platform/SpringBoard/SBReachabilityManager.h"

namespace host::springboard {
namespace {

constexpr NSInteger kNewBanner = 0;

}  // namespace

void present_banner(std::string_view text) {
  SBBannerController::sharedInstance()._presentBannerForContext(to_ns(text), kNewBanner);
}

void present_notification_centre() {
  SharedInstance<SBNotificationCenterViewController>::get().hostWillPresent();
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
  SharedInstance<SBLockScreenViewController>::get()._handleDisplayTurnedOff();
}

void unlock() {
  SharedInstance<SBLockScreenViewController>::get().prepareForUIUnlock();
}

}  // namespace host::springboard
