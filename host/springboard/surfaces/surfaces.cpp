#include "host/springboard/surfaces/surfaces.h"

#include "host/springboard/common/shared_instance.h"
#include "host/springboard/surfaces/banner_controller.h"
#include "host/springboard/surfaces/control_centre.h"
#include "host/springboard/surfaces/lock_screen.h"
#include "host/springboard/surfaces/notification_centre.h"
#include "host/springboard/surfaces/volume_overlay.h"
#include "host/springboard/switcher/app_switcher.h"
#include "platform/SpringBoard/SBIconController.h"
#include "platform/SpringBoard/SBReachabilityManager.h"

namespace host::springboard {

bool is_locked() {
  return lock_screen().is_locked();
}

bool is_notification_centre_open() {
  return notification_centre().is_presented();
}

void open_notification_centre() {
  SBNotificationCenterController::sharedInstance().presentAnimated(YES);
}

bool close_top_surface() {
  const SBControlCenterController controls = SBControlCenterController::sharedInstance();
  if (controls.isPresented()) {
    controls.dismissAnimated(YES);
  } else if (is_notification_centre_open()) {
    SBNotificationCenterController::sharedInstance().dismissAnimated(YES);
  } else if (SBReachabilityManager::sharedInstance().reachabilityModeActive()) {
    SBReachabilityManager::sharedInstance()._handleReachabilityDeactivated();
  } else {
    return false;
  }
  return true;
}

void close_surfaces_at_once() {
  app_switcher().dismiss_at_once();
  const SBControlCenterController controls = SBControlCenterController::sharedInstance();
  if (controls.isPresented()) controls.dismissAnimated(NO);
  notification_centre().close_at_once();
  banners().forget_queue();
  banners().present_banner(nil, 0);
  SharedPart<VolumeOverlay>::get().hide_at_once();
  const SBReachabilityManager reach = SBReachabilityManager::sharedInstance();
  if (reach.reachabilityModeActive()) reach._handleReachabilityDeactivated();
  if (SBIconController::sharedInstance().isEditing())
    SBIconController::sharedInstance().setIsEditing(NO);
}

}  // namespace host::springboard
