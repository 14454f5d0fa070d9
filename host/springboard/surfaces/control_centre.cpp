#include "host/springboard/surfaces/control_centre.h"

#include <algorithm>

#include "host/springboard/application/application_controller.h"
#include "host/springboard/common/make_view.h"
#include "host/springboard/common/screen_grid.h"
#include "host/springboard/common/shared_instance.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/parts/surface_window.h"
#include "host/springboard/parts/window_levels.h"
#include "host/springboard/surfaces/display.h"
#include "host/springboard/surfaces/surfaces.h"
#include "host/uikit/touch/touch_input.h"
#include "platform/SpringBoard/SBUIController.h"

namespace host::springboard {
namespace {

constexpr double kShading = 0.35;

void control_centre_will_present(SBControlCenterContainerView) {}

void open_application(NSString bundle) {
  SBUIController::sharedInstance().activateApplicationAnimated(
      installed_application(to_string(bundle)));
}

}  // namespace

ControlCentre::~ControlCentre() {
  take_down();
}

bool ControlCentre::bring_in() {
  uikit::cancel_every_touch();
  const CGRect screen{{0, 0}, screen_grid().screen};
  if (!view_) view_ = make_view<SBControlCenterContainerView>(screen);
  take_down();
  // Set before the view is notified: an extension may dismiss the centre from that call.
  presented_ = YES;
  view_->controlCenterWillPresent();
  if (!presented_) return false;
  window_ = make_surface_window(kControlCentreLevel);
  window_->addSubview(*view_);
  panel_ = std::make_unique<ControlCentrePanel>(
      *view_, ControlCentrePanel::Callbacks{[this] { self.dismissAnimated(YES); },
                                            [this](UIPanGestureRecognizer pan) { panned(pan); },
                                            [this](NSString bundle) {
                                              self.dismissAnimated(YES);
                                              if (!is_locked()) open_application(bundle);
                                            }});
  motion_.emplace(panel_->sheet(),
                  SheetMotion::Places{screen.size.height - panel_->height(), screen.size.height},
                  [this](Rest rest) { rested(rest); });
  panel_->playback().start_watching();
  window_->setHidden(NO);
  return true;
}

void ControlCentre::present_animated(BOOL animated) {
  if (presented_ || !bring_in()) return;
  if (is_pulled_) {
    // The top of the glass comes up to the finger, wherever on the edge the finger went down.
    motion_->grab();
  } else if (animated) {
    settle(Rest::kOpen, 0);
  } else {
    panel_->set_shade(1);
    motion_->put(Rest::kOpen);
  }
}

void ControlCentre::dismiss_animated(BOOL animated) {
  if (!presented_) return;
  presented_ = NO;
  if (!panel_) return;
  if (animated) {
    settle(Rest::kClosed, velocity_);
  } else {
    take_down();
  }
}

bool ControlCentre::can_be_pulled() const {
  return !presented_ && SharedPart<Display>::get().is_on() && !is_notification_centre_open();
}

void ControlCentre::pull_began(CGPoint) {
  pulled_from_ = screen_grid().screen.height;
  is_pulled_ = true;
  self.presentAnimated(YES);
  is_pulled_ = false;
}

void ControlCentre::pull_moved(CGPoint point) {
  if (!presented_ || !motion_) return;
  motion_->follow(point.y - pulled_from_);
  panel_->set_shade(std::clamp<CGFloat>((pulled_from_ - point.y) / panel_->height(), 0, 1));
}

void ControlCentre::pull_ended(CGPoint, CGFloat velocity) {
  if (presented_ && motion_) let_go(velocity);
}

void ControlCentre::let_go(CGFloat velocity) {
  if (motion_->rest_after(velocity) == Rest::kOpen) return settle(Rest::kOpen, velocity);
  velocity_ = velocity;
  self.dismissAnimated(YES);
  velocity_ = 0;
}

void ControlCentre::pull_cancelled() {
  if (presented_ && motion_) self.dismissAnimated(YES);
}

void ControlCentre::panned(UIPanGestureRecognizer pan) {
  if (!presented_ || !motion_) return;
  const CGFloat way = pan.translationInView(nil).y;
  const CGFloat velocity = pan.velocityInView(nil).y;
  switch (pan.state()) {
    case UIGestureRecognizerStateBegan:
      motion_->grab();
      [[fallthrough]];
    case UIGestureRecognizerStateChanged:
      motion_->follow(way);
      panel_->set_shade(std::clamp<CGFloat>(1 - way / panel_->height(), 0, 1));
      break;
    case UIGestureRecognizerStateEnded:
      let_go(velocity);
      break;
    default:
      settle(Rest::kOpen, velocity);
  }
}

void ControlCentre::settle(Rest rest, CGFloat velocity) {
  if (rest == Rest::kClosed) presented_ = NO;
  const bool opens = rest == Rest::kOpen;
  UIView::animateWithDuration(kShading, 0, UIViewAnimationOptionAllowUserInteraction,
                              objc::block([this, opens] { panel_->set_shade(opens ? 1 : 0); }),
                              objc::Block<void(BOOL)>());
  motion_->go_to(rest, velocity);
}

void ControlCentre::rested(Rest rest) {
  if (rest == Rest::kClosed) take_down();
}

void ControlCentre::take_down() {
  motion_.reset();
  panel_.reset();
  if (!window_) return;
  view_->removeFromSuperview();
  window_->setHidden(YES);
  window_.reset();
}

void export_control_centre_view() {
  objc::ClassBuilder("SBControlCenterContainerView", "UIView")
      .method<&control_centre_will_present>("controlCenterWillPresent")
      .finish();
}

void export_control_centre() {
  objc::ClassBuilder("SBControlCenterController", "NSObject")
      .state<ControlCentre>()
      .class_method<&shared_instance<SBControlCenterController>>("sharedInstance")
      .method<&ControlCentre::present_animated>("presentAnimated:")
      .method<&ControlCentre::dismiss_animated>("dismissAnimated:")
      .method<&ControlCentre::is_presented>("isPresented")
      .finish();
}

}  // namespace host::springboard
