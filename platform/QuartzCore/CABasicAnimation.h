#pragma once

#include "platform/QuartzCore/CAAnimation.h"

/// Values are NSNumber, NSValue (point, size, rectangle, transform), CGColor, or NSArray of these.
struct CABasicAnimation : objc::Bound<CABasicAnimation, "CABasicAnimation", CAPropertyAnimation> {
  static CABasicAnimation animationWithKeyPath(NSString path) {
    return call_class<"animationWithKeyPath:", CABasicAnimation>(path);
  }
  objc::Object fromValue() const { return call<"fromValue", objc::Object>(); }
  void setFromValue(objc::Object value) const { call<"setFromValue:">(value); }
  objc::Object toValue() const { return call<"toValue", objc::Object>(); }
  void setToValue(objc::Object value) const { call<"setToValue:">(value); }
  objc::Object byValue() const { return call<"byValue", objc::Object>(); }
  void setByValue(objc::Object value) const { call<"setByValue:">(value); }
};
