#pragma once

#include "platform/Foundation/NSObject.h"

struct SBReachabilityManager
    : objc::Bound<SBReachabilityManager, "SBReachabilityManager", NSObject> {
  static SBReachabilityManager sharedInstance() {
    return call_class<"sharedInstance", SBReachabilityManager>();
  }
  static BOOL reachabilitySupported() { return call_class<"reachabilitySupported", BOOL>(); }
  BOOL reachabilityModeActive() const { return call<"reachabilityModeActive", BOOL>(); }
  void _handleReachabilityActivated() const { call<"_handleReachabilityActivated">(); }
  void _handleReachabilityDeactivated() const { call<"_handleReachabilityDeactivated">(); }
  void _handleSignificantTimeChanged() const { call<"_handleSignificantTimeChanged">(); }
  void _keepAliveTimerFired(objc::Object timer) const { call<"_keepAliveTimerFired:">(timer); }
};
