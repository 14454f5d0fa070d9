#pragma once

#include "platform/Foundation/NSDate.h"

struct NSTimer : objc::Bound<NSTimer, "NSTimer", NSObject> {
  /// The run loop retains the timer, and the timer its target, until the timer is invalidated.
  static NSTimer scheduledTimerWithTimeInterval(NSTimeInterval interval, objc::Object target,
                                                objc::Sel selector, objc::Object user_info,
                                                BOOL repeats) {
    return call_class<"scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:", NSTimer>(
        interval, target, selector, user_info, repeats);
  }
  static NSTimer timerWithTimeInterval(NSTimeInterval interval, objc::Object target,
                                       objc::Sel selector, objc::Object user_info, BOOL repeats) {
    return call_class<"timerWithTimeInterval:target:selector:userInfo:repeats:", NSTimer>(
        interval, target, selector, user_info, repeats);
  }

  void fire() const { call<"fire">(); }
  void invalidate() const { call<"invalidate">(); }
  BOOL isValid() const { return call<"isValid", BOOL>(); }
  NSTimeInterval timeInterval() const { return call<"timeInterval", NSTimeInterval>(); }
  objc::Object userInfo() const { return call<"userInfo", objc::Object>(); }
};
