#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "host/runtime/run_loop.h"
#include "host/springboard/parts/surface_action.h"
#include "objc/class_builder.h"
#include "platform/SpringBoard/SBReachabilityManager.h"
#include "platform/UIKit/UIWindow.h"

namespace host::springboard {

/// Moves the screen down for a while, to let a thumb reach its top.
class Reachability : public objc::Implementation<Reachability, SBReachabilityManager> {
 public:
  using Implementation::Implementation;
  ~Reachability();

  BOOL is_active() const { return active_; }
  void handle_activated();
  void handle_deactivated() { leave(); }
  void handle_significant_time_changed() { leave(); }
  /// The screen was not touched for a while.
  void keep_alive_timer_fired(objc::Object) { leave(); }

 private:
  void leave();
  void move_windows(CGFloat way);
  void stop_waiting();
  void take_down();

  /// The windows that were moved down. Exactly these are moved back, whatever has appeared since.
  std::vector<objc::Ref<UIWindow>> moved_;
  objc::Ref<UIWindow> above_;
  objc::Ref<UIWindow> behind_;
  std::unique_ptr<SurfaceActions> actions_;
  std::optional<RunLoop::Id> keep_alive_;
  BOOL active_ = NO;
  int ways_back_ = 0;
  /// Expires with this object, which an animation may outlive.
  std::shared_ptr<void> life_ = std::make_shared<char>();
};

void export_reachability();

}  // namespace host::springboard
