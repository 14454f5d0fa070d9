#include "host/springboard/surfaces/banner_controller.h"

#include "host/springboard/common/make_view.h"
#include "host/springboard/common/screen_grid.h"
#include "host/springboard/common/shared_instance.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/parts/surface_parts.h"
#include "host/springboard/parts/surface_window.h"
#include "host/springboard/parts/window_levels.h"
#include "host/springboard/surfaces/notification_row.h"
#include "host/springboard/surfaces/surfaces.h"

namespace host::springboard {
namespace {

constexpr double kBannerStay = 5;
constexpr CGFloat kGrabberRoom = 8;
constexpr CGFloat kHeight = kNotificationRowHeight + kGrabberRoom;
// The glass extends above the screen, because the spring overshoots.
constexpr CGFloat kGlassAboveBanner = 80;
constexpr CGFloat kPullToCentre = 40;
constexpr NSInteger kNewBanner = 0;

}  // namespace

BannerController::~BannerController() {
  stop_waiting();
  take_down();
}

void BannerController::enqueue(const std::string& text) {
  if (context_) {
    queue_.push_back(text);
  } else {
    self._presentBannerForContext(to_ns(text), kNewBanner);
  }
}

void BannerController::present_banner(objc::Object context, NSInteger) {
  stop_waiting();
  take_down();
  context_.reset(context);
  if (!context) return;
  build();
  motion_->go_to(Rest::kOpen, 0);
  wait_to_leave();
}

void BannerController::build() {
  const CGFloat width = screen_grid().screen.width;
  window_ = make_surface_window(kBannerLevel);
  banner_ =
      make_view<UIView>({0, -kHeight - kGlassAboveBanner, width, kHeight + kGlassAboveBanner});
  window_->addSubview(*banner_);
  add_backdrop(*banner_, banner_->bounds(), kInkBackdrop);
  const bool is_text = objc::cast<NSObject>(*context_).isKindOfClass(NSString::cls());
  const std::string text = is_text ? to_string(objc::cast<NSString>(*context_)) : "";
  add_notification_row(*banner_, {0, kGlassAboveBanner, width, kNotificationRowHeight},
                       {"Messages", text, "now"});
  add_grabber(*banner_, {width / 2, kGlassAboveBanner + kHeight - kGrabberRoom},
              UIColor::colorWithWhite(1, 0.35));
  actions_ = std::make_unique<SurfaceActions>();
  actions_->on_pan(*banner_, [this](UIPanGestureRecognizer pan) { panned(pan); });
  motion_.emplace(*banner_, SheetMotion::Places{-kGlassAboveBanner, -kHeight - kGlassAboveBanner},
                  [this](Rest rest) { rested(rest); });
  window_->setHidden(NO);
}

void BannerController::panned(UIPanGestureRecognizer pan) {
  if (!motion_) return;
  const CGFloat way = pan.translationInView(nil).y;
  switch (pan.state()) {
    case UIGestureRecognizerStateBegan:
      stop_waiting();
      motion_->grab();
      [[fallthrough]];
    case UIGestureRecognizerStateChanged:
      motion_->follow(way);
      break;
    default: {
      const CGFloat velocity = pan.velocityInView(nil).y;
      const bool is_let_go = pan.state() == UIGestureRecognizerStateEnded;
      if (is_let_go && way > kPullToCentre) {
        queue_.clear();
        send_away(0);
        return open_notification_centre();
      }
      if (motion_->rest_after(velocity) == Rest::kClosed || way < -kHeight / 4)
        return send_away(velocity);
      motion_->go_to(Rest::kOpen, velocity);
      wait_to_leave();
    }
  }
}

void BannerController::wait_to_leave() {
  RunLoop& loop = RunLoop::main();
  leaving_ = loop.add_timer(loop.now() + kBannerStay, 0, [this] {
    leaving_.reset();
    send_away(0);
  });
}

void BannerController::stop_waiting() {
  if (leaving_ && RunLoop::has_main()) RunLoop::main().remove_timer(*leaving_);
  leaving_.reset();
}

void BannerController::send_away(CGFloat velocity) {
  stop_waiting();
  if (motion_) motion_->go_to(Rest::kClosed, velocity);
}

void BannerController::rested(Rest rest) {
  if (rest == Rest::kOpen) return;
  // It leaves without a context: extensions are not told of a banner that only goes away.
  context_.reset();
  take_down();
  if (queue_.empty()) return;
  const std::string next = queue_.front();
  queue_.pop_front();
  self._presentBannerForContext(to_ns(next), kNewBanner);
}

void BannerController::take_down() {
  motion_.reset();
  actions_.reset();
  banner_.reset();
  if (window_) window_->setHidden(YES);
  window_.reset();
}

BannerController& banners() {
  return objc::state_of<BannerController>(SBBannerController::sharedInstance());
}

void export_banner_controller() {
  objc::ClassBuilder("SBBannerController", "NSObject")
      .state<BannerController>()
      .class_method<&shared_instance<SBBannerController>>("sharedInstance")
      .method<&BannerController::present_banner>("_presentBannerForContext:reason:")
      .method<&BannerController::is_showing_banner>("isShowingBanner")
      .finish();
}

}  // namespace host::springboard
