#pragma once

#include "platform/Foundation/NSString.h"

// The names of the platform's own curves.
extern "C" {
extern NSString kCAMediaTimingFunctionLinear;
extern NSString kCAMediaTimingFunctionEaseIn;
extern NSString kCAMediaTimingFunctionEaseOut;
extern NSString kCAMediaTimingFunctionEaseInEaseOut;
extern NSString kCAMediaTimingFunctionDefault;
}

/// A timing curve from (0, 0) to (1, 1). Its names are "linear", "easeIn", "easeOut",
/// "easeInEaseOut" and "default".
struct CAMediaTimingFunction
    : objc::Bound<CAMediaTimingFunction, "CAMediaTimingFunction", NSObject> {
  static CAMediaTimingFunction functionWithName(NSString name) {
    return call_class<"functionWithName:", CAMediaTimingFunction>(name);
  }
  static CAMediaTimingFunction functionWithControlPoints(float x1, float y1, float x2, float y2) {
    return call_class<"functionWithControlPoints::::", CAMediaTimingFunction>(x1, y1, x2, y2);
  }
  CAMediaTimingFunction initWithControlPoints(float x1, float y1, float x2, float y2) const {
    return call<"initWithControlPoints::::", CAMediaTimingFunction>(x1, y1, x2, y2);
  }
  /// Writes x and y of control point `index` (0 to 3) to `values`.
  void getControlPointAtIndex(NSUInteger index, float* values) const {
    call<"getControlPointAtIndex:values:">(index, values);
  }
};
