#pragma once

#include "platform/Foundation/NSArray.h"
#include "platform/QuartzCore/CAAnimation.h"

struct CAKeyframeAnimation
    : objc::Bound<CAKeyframeAnimation, "CAKeyframeAnimation", CAPropertyAnimation> {
  static CAKeyframeAnimation animationWithKeyPath(NSString path) {
    return call_class<"animationWithKeyPath:", CAKeyframeAnimation>(path);
  }
  NSArray values() const { return call<"values", NSArray>(); }
  void setValues(NSArray values) const { call<"setValues:">(values); }
  /// Fractions of the duration, one for each value; nil spreads the values evenly.
  NSArray keyTimes() const { return call<"keyTimes", NSArray>(); }
  void setKeyTimes(NSArray times) const { call<"setKeyTimes:">(times); }
};
