#pragma once

#include "platform/Foundation/NSObject.h"

struct SBNotificationCenterController
    : objc::Bound<SBNotificationCenterController, "SBNotificationCenterController", NSObject> {
  static SBNotificationCenterController sharedInstance() {
    return call_class<"sharedInstance", SBNotificationCenterController>();
  }
  void presentAnimated(BOOL animated) const { call<"presentAnimated:">(animated); }
  void dismissAnimated(BOOL animated) const { call<"dismissAnimated:">(animated); }
  BOOL isVisible() const { return call<"isVisible", BOOL>(); }
};
