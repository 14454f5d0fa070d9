#include "host/springboard/surfaces/notification_centre.h"

#include "host/springboard/common/configuration.h"
#include "host/springboard/common/screen_grid.h"
#include "host/springboard/common/shared_instance.h"
#include "host/springboard/parts/surface_window.h"
#include "host/springboard/parts/window_levels.h"
#include "host/springboard/surfaces/display.h"
#include "host/uikit/touch/touch_input.h"
#include "platform/SpringBoard/SBControlCenterController.h"

namespace host::springboard {
namespace {

SBNotificationCenterController controller() {
  return SBNotificationCenterController::sharedInstance();
}

NotificationCentre& centre() {
  return objc::state_of<NotificationCentre>(
      SharedInstance<SBNotificationCenterViewController>::get());
}

void present_animated(SBNotificationCenterController, BOOL animated) {
  centre().present(animated);
}

void dismiss_animated(SBNotificationCenterController, BOOL animated) {
  centre().dismiss(animated);
}

BOOL is_visible(SBNotificationCenterController) {
  return centre().is_presented();
}

}  // namespace

NotificationCentre::~NotificationCentre() {
  close_at_once();
}

void NotificationCentre::bring_in() {
  close_at_once();
  uikit::cancel_every_touch();
  self.hostWillPresent();
  presented_ = YES;
  window_ = make_surface_window(kNotificationCentreLevel);
  panel_ = std::make_unique<NotificationCentrePanel>(
      *window_, *configuration().wall_clock,
      NotificationCentrePanel::Callbacks{[this](UIPanGestureRecognizer pan) { panned(pan); },
                                         [this] { clear(); }});
  panel_->show(store_.all());
  const CGRect sheet = panel_->sheet().frame();
  const CGFloat above = sheet.size.height - screen_grid().screen.height;
  motion_.emplace(panel_->sheet(), SheetMotion::Places{-above, sheet.origin.y}, [this](Rest rest) {
    if (rest == Rest::kClosed) close_at_once();
  });
  window_->setHidden(NO);
}

void NotificationCentre::present(BOOL animated) {
  if (presented_) return;
  bring_in();
  if (is_pulled_) {
    motion_->grab();
  } else if (animated) {
    settle(Rest::kOpen, 0);
  } else {
    motion_->put(Rest::kOpen);
  }
}

void NotificationCentre::dismiss(BOOL animated) {
  if (!animated) return close_at_once();
  if (presented_ && motion_) settle(Rest::kClosed, velocity_);
}

void NotificationCentre::close_at_once() {
  presented_ = NO;
  motion_.reset();
  panel_.reset();
  if (window_) window_->setHidden(YES);
  window_.reset();
}

void NotificationCentre::add(Notification message) {
  store_.add(std::move(message));
  if (panel_) panel_->show(store_.all());
}

void NotificationCentre::clear() {
  store_.clear();
  if (panel_) panel_->show(store_.all());
}

bool NotificationCentre::can_be_pulled() const {
  return !presented_ && SharedPart<Display>::get().is_on() &&
         !SBControlCenterController::sharedInstance().isPresented();
}

void NotificationCentre::pull_began(CGPoint) {
  is_pulled_ = true;
  controller().presentAnimated(YES);
  is_pulled_ = false;
}

void NotificationCentre::pull_moved(CGPoint point) {
  if (presented_ && motion_) motion_->follow(point.y);
}

void NotificationCentre::pull_ended(CGPoint, CGFloat velocity) {
  if (presented_ && motion_) let_go(velocity);
}

void NotificationCentre::let_go(CGFloat velocity) {
  if (motion_->rest_after(velocity) == Rest::kOpen) return settle(Rest::kOpen, velocity);
  velocity_ = velocity;
  controller().dismissAnimated(YES);
  velocity_ = 0;
}

void NotificationCentre::pull_cancelled() {
  controller().dismissAnimated(YES);
}

void NotificationCentre::panned(UIPanGestureRecognizer pan) {
  if (!presented_ || !motion_) return;
  const CGFloat velocity = pan.velocityInView(nil).y;
  switch (pan.state()) {
    case UIGestureRecognizerStateBegan:
      motion_->grab();
      [[fallthrough]];
    case UIGestureRecognizerStateChanged:
      motion_->follow(pan.translationInView(nil).y);
      break;
    case UIGestureRecognizerStateEnded:
      let_go(velocity);
      break;
    default:
      settle(Rest::kOpen, 0);
  }
}

void NotificationCentre::settle(Rest rest, CGFloat velocity) {
  if (rest == Rest::kClosed) presented_ = NO;
  motion_->go_to(rest, velocity);
}

NotificationCentre& notification_centre() {
  return objc::state_of<NotificationCentre>(
      SharedInstance<SBNotificationCenterViewController>::get());
}

void export_notification_centre() {
  objc::ClassBuilder("SBNotificationCenterViewController", "UIViewController")
      .state<NotificationCentre>()
      .method<&NotificationCentre::host_will_present>("hostWillPresent")
      .finish();
  objc::ClassBuilder("SBNotificationCenterController", "NSObject")
      .class_method<&shared_instance<SBNotificationCenterController>>("sharedInstance")
      .method<&present_animated>("presentAnimated:")
      .method<&dismiss_animated>("dismissAnimated:")
      .method<&is_visible>("isVisible")
      .finish();
}

}  // namespace host::springboard
