#pragma once

#include "objc/class_builder.h"
#include "platform/SpringBoard/SBReachabilityManager.h"

namespace host::springboard {

/// Whether the screen is pulled down for a thumb. Nothing moves yet.
class Reachability : public objc::Implementation<Reachability, SBReachabilityManager> {
 public:
  using Implementation::Implementation;

  BOOL is_active() const { return active_; }
  void handle_activated() { active_ = YES; }
  void handle_deactivated() { active_ = NO; }
  void handle_significant_time_changed() { active_ = NO; }
  /// Nobody touched the screen for a while.
  void keep_alive_timer_fired(objc::Object) { active_ = NO; }

 private:
  BOOL active_ = NO;
};

void export_reachability();

}  // namespace host::springboard
