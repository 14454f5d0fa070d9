#include "host/springboard/surfaces/notification_centre.h"

#include "host/springboard/configuration.h"
#include "host/springboard/screen_grid.h"
#include "host/springboard/shared_instance.h"
#include "host/springboard/surfaces/display.h"
#include "host/springboard/surfaces/surface_window.h"
#include "host/springboard/surfaces/window_levels.h"
#include "host/uikit/gesture/touch_input.h"
#include "platform/SpringBoard/SBControlCenterController.h"

namespace host::springboard {

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
      NotificationCentrePanel::Wishes{[this](UIPanGestureRecognizer pan) { panned(pan); },
                                      [this] { clear(); }});
  panel_->show(store_.all());
  const CGRect sheet = panel_->sheet().frame();
  const CGFloat above = sheet.size.height - screen_grid().screen.height;
  motion_.emplace(panel_->sheet(), SheetMotion::Places{-above, sheet.origin.y}, [this](Rest rest) {
    if (rest == Rest::kClosed) close_at_once();
  });
  window_->setHidden(NO);
}

void NotificationCentre::open() {
  if (presented_) return;
  bring_in();
  settle(Rest::kOpen, 0);
}

void NotificationCentre::close() {
  if (presented_ && motion_) settle(Rest::kClosed, 0);
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
  bring_in();
  motion_->grab();
}

void NotificationCentre::pull_moved(CGPoint point) {
  if (presented_ && motion_) motion_->follow(point.y);
}

void NotificationCentre::pull_ended(CGPoint, CGFloat velocity) {
  if (presented_ && motion_) settle(motion_->rest_after(velocity), velocity);
}

void NotificationCentre::pull_cancelled() {
  close();
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
      settle(motion_->rest_after(velocity), velocity);
      break;
    default:
      settle(Rest::kOpen, 0);
  }
}

void NotificationCentre::settle(Rest rest, CGFloat velocity) {
  if (rest == Rest::kClosed) presented_ = NO;
  motion_->go_to(rest, velocity);
}

void export_notification_centre() {
  objc::ClassBuilder("SBNotificationCenterViewController", "UIViewController")
      .state<NotificationCentre>()
      .method<&NotificationCentre::host_will_present>("hostWillPresent")
      .method<&NotificationCentre::is_presented>("isPresented")
      .finish();
}

}  // namespace host::springboard
