#pragma once

#include "platform/Foundation/NSValue.h"
#include "platform/QuartzCore/CATransform3D.h"

/// Wraps geometry as values for animations: `CAValue::valueWithCGPoint(point)`.
struct CAValue : objc::Bound<CAValue, "NSValue", NSValue> {
  static CAValue valueWithCGPoint(CGPoint point) {
    return call_class<"valueWithCGPoint:", CAValue>(point);
  }
  static CAValue valueWithCGSize(CGSize size) {
    return call_class<"valueWithCGSize:", CAValue>(size);
  }
  static CAValue valueWithCGRect(CGRect rect) {
    return call_class<"valueWithCGRect:", CAValue>(rect);
  }
  static CAValue valueWithCATransform3D(CATransform3D transform) {
    return call_class<"valueWithCATransform3D:", CAValue>(transform);
  }
  CGPoint CGPointValue() const { return call<"CGPointValue", CGPoint>(); }
  CGSize CGSizeValue() const { return call<"CGSizeValue", CGSize>(); }
  CGRect CGRectValue() const { return call<"CGRectValue", CGRect>(); }
  CATransform3D CATransform3DValue() const { return call<"CATransform3DValue", CATransform3D>(); }
};
