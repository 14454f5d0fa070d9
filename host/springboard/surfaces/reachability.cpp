#include "host/springboard/surfaces/reachability.h"

#include "host/springboard/common/make_view.h"
#include "host/springboard/common/screen_grid.h"
#include "host/springboard/common/shared_instance.h"
#include "host/springboard/parts/surface_parts.h"
#include "host/springboard/parts/surface_window.h"
#include "host/springboard/parts/window_levels.h"
#include "host/uikit/geometry/window_list.h"
#include "host/uikit/touch/touch_input.h"
#include "platform/CoreGraphics/CGAffineTransform.h"

namespace host::springboard {
namespace {

constexpr CGFloat kSmallestTallScreen = 667;
constexpr CGFloat kPartBroughtDown = 0.4;
constexpr double kBringingDown = 0.35;
constexpr double kKeepAlive = 8;

/// Only tall phones support it.
BOOL reachability_supported(objc::Object) {
  return !is_tablet_screen() && screen_grid().screen.height >= kSmallestTallScreen ? YES : NO;
}

}  // namespace

Reachability::~Reachability() {
  stop_waiting();
  take_down();
}

void Reachability::handle_activated() {
  if (active_) return;
  active_ = YES;
  take_down();
  // The windows move away under the fingers.
  uikit::cancel_every_touch();
  for (const UIWindow window : uikit::visible_windows()) {
    if (window.windowLevel() <= UIWindowLevelStatusBar)
      moved_.push_back(objc::Ref<UIWindow>::retain(window));
  }
  behind_ = make_surface_window(kBehindScreenLevel);
  add_blurred_wallpaper(*behind_);
  behind_->setHidden(NO);
  const CGSize screen = screen_grid().screen;
  above_ = make_surface_window(kLockScreenLevel - 1);
  const auto free = make_view<UIView>({0, 0, screen.width, screen.height * kPartBroughtDown});
  above_->addSubview(*free);
  actions_ = std::make_unique<SurfaceActions>();
  actions_->on_tap(*free, [this] { self._handleReachabilityDeactivated(); });
  above_->setHidden(NO);
  move_windows(screen.height * kPartBroughtDown);
  RunLoop& loop = RunLoop::main();
  keep_alive_ = loop.add_timer(loop.now() + kKeepAlive, 0, [this] {
    keep_alive_.reset();
    self._keepAliveTimerFired(nil);
  });
}

void Reachability::leave() {
  if (!active_) return;
  active_ = NO;
  ++ways_back_;
  stop_waiting();
  move_windows(0);
}

void Reachability::move_windows(CGFloat way) {
  const auto windows = moved_;
  const auto done =
      objc::block([this, way_back = ways_back_, life = std::weak_ptr<void>(life_)](BOOL) {
        if (!life.expired() && way_back == ways_back_ && !active_) take_down();
      });
  UIView::animateWithDuration(kBringingDown, 0, 1, 0, UIViewAnimationOptionAllowUserInteraction,
                              objc::block([windows, way] {
                                for (const auto& window : windows)
                                  window->setTransform(CGAffineTransformMakeTranslation(0, way));
                              }),
                              done);
}

void Reachability::stop_waiting() {
  if (keep_alive_ && RunLoop::has_main()) RunLoop::main().remove_timer(*keep_alive_);
  keep_alive_.reset();
}

void Reachability::take_down() {
  moved_.clear();
  actions_.reset();
  if (above_) above_->setHidden(YES);
  above_.reset();
  if (behind_) behind_->setHidden(YES);
  behind_.reset();
}

void export_reachability() {
  objc::ClassBuilder("SBReachabilityManager", "NSObject")
      .state<Reachability>()
      .class_method<&shared_instance<SBReachabilityManager>>("sharedInstance")
      .class_method<&reachability_supported>("reachabilitySupported")
      .method<&Reachability::is_active>("reachabilityModeActive")
      .method<&Reachability::handle_activated>("_handleReachabilityActivated")
      .method<&Reachability::handle_deactivated>("_handleReachabilityDeactivated")
      .method<&Reachability::handle_significant_time_changed>("_handleSignificantTimeChanged")
      .method<&Reachability::keep_alive_timer_fired>("_keepAliveTimerFired:")
      .finish();
}

}  // namespace host::springboard
