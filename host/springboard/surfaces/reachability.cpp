#include "host/springboard/surfaces/reachability.h"

#include "host/springboard/screen_grid.h"
#include "host/springboard/shared_instance.h"

namespace host::springboard {
namespace {

constexpr CGFloat kSmallestTallScreen = 667;

/// Only the tall phones have it.
BOOL reachability_supported(objc::Object) {
  return !is_tablet_screen() && screen_grid().screen.height >= kSmallestTallScreen ? YES : NO;
}

}  // namespace

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
