#pragma once

#include "host/springboard/common/shared_instance.h"
#include "host/springboard/surfaces/banner_controller.h"
#include "host/springboard/surfaces/control_centre.h"
#include "host/springboard/surfaces/display.h"
#include "host/springboard/surfaces/lock_screen.h"
#include "host/springboard/surfaces/notification_centre.h"
#include "host/springboard/system/system_actions.h"
#include "tests/support/phone_fixture.h"

namespace host::test {

/// A home screen whose system surfaces are used with a finger.
class SurfaceTest : public PhoneTest {
 public:
  explicit SurfaceTest(std::string_view model = kDefaultDevice) : PhoneTest(model) {}

 protected:
  void SetUp() override { launch(); }

  CGSize screen() const { return UIScreen::mainScreen().bounds().size; }
  CGPoint bottom_edge() const { return {screen().width / 2, screen().height - 3}; }
  CGPoint top_edge() const { return {screen().width / 2, 3}; }
  CGPoint middle() const { return {screen().width / 2, screen().height / 2}; }
  /// Drags, then lifts immediately.
  void fling(CGPoint from, CGPoint to, double seconds) {
    drag(from, to, seconds);
    lift();
  }
  /// True when no frames are requested, that is, nothing moves.
  bool is_at_rest() { return !loop.wants_frames(); }

  static springboard::ControlCentre& control_centre() {
    return objc::state_of<springboard::ControlCentre>(SBControlCenterController::sharedInstance());
  }
  static springboard::NotificationCentre& notification_centre() {
    return objc::state_of<springboard::NotificationCentre>(
        springboard::SharedInstance<SBNotificationCenterViewController>::get());
  }
  static springboard::LockScreen& lock_screen() {
    return objc::state_of<springboard::LockScreen>(
        springboard::SharedInstance<SBLockScreenViewController>::get());
  }
  static springboard::BannerController& banners() {
    return objc::state_of<springboard::BannerController>(SBBannerController::sharedInstance());
  }
  static springboard::Display& display() {
    return springboard::SharedPart<springboard::Display>::get();
  }
  static CGFloat top_of(UIView view) { return CGRect(view.frame()).min_y(); }
};

}  // namespace host::test
