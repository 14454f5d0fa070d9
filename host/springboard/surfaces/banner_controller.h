#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <string>

#include "host/runtime/run_loop.h"
#include "host/springboard/parts/surface_action.h"
#include "host/springboard/surfaces/sheet_motion.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/Foundation/NSString.h"
#include "platform/SpringBoard/SBBannerController.h"
#include "platform/UIKit/UIWindow.h"

namespace host::springboard {

/// Shows messages that slide down from the top, one after the other. A message leaves by itself
/// after five seconds; the user can also push it up, or pull it down into the notification centre.
class BannerController : public objc::Implementation<BannerController, SBBannerController> {
 public:
  using Implementation::Implementation;
  ~BannerController();

  /// A nil context removes the banner; any other replaces the current one.
  void present_banner(objc::Object context, NSInteger reason);
  BOOL is_showing_banner() const { return context_ ? YES : NO; }

  /// Shows the text at once, or after the banners before it.
  void enqueue(const std::string& text);
  void forget_queue() { queue_.clear(); }
  UIView banner() const { return banner_.get(); }

 private:
  void build();
  void panned(UIPanGestureRecognizer pan);
  void wait_to_leave();
  void stop_waiting();
  void send_away(CGFloat velocity);
  void rested(Rest rest);
  void take_down();

  std::deque<std::string> queue_;
  objc::Ref<objc::Object> context_;
  objc::Ref<UIWindow> window_;
  objc::Ref<UIView> banner_;
  std::optional<SheetMotion> motion_;
  std::unique_ptr<SurfaceActions> actions_;
  std::optional<RunLoop::Id> leaving_;
};

BannerController& banners();

void export_banner_controller();

}  // namespace host::springboard
