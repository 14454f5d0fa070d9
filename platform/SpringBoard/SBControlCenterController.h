#pragma once

#include "platform/Foundation/NSObject.h"

struct SBControlCenterController
    : objc::Bound<SBControlCenterController, "SBControlCenterController", NSObject> {
  static SBControlCenterController sharedInstance() {
    return call_class<"sharedInstance", SBControlCenterController>();
  }
  void presentAnimated(BOOL animated) const { call<"presentAnimated:">(animated); }
  void dismissAnimated(BOOL animated) const { call<"dismissAnimated:">(animated); }
  BOOL isPresented() const { return call<"isPresented", BOOL>(); }
};
