#pragma once

#include <gmock/gmock.h>

#include <cmath>
#include <ostream>

#include "platform/CoreGraphics/CGRect.h"

// How failed expectations print the platform's structures.

inline void PrintTo(const CGPoint& point, std::ostream* out) {
  *out << "{" << point.x << ", " << point.y << "}";
}
inline void PrintTo(const CGSize& size, std::ostream* out) {
  *out << "{" << size.width << ", " << size.height << "}";
}
inline void PrintTo(const CGRect& rect, std::ostream* out) {
  *out << "{{" << rect.origin.x << ", " << rect.origin.y << "}, {" << rect.size.width << ", "
       << rect.size.height << "}}";
}

namespace host::test {

/// Far below a pixel, and far above the rounding error of single precision on a screen.
inline constexpr CGFloat kHair = 1e-4;

inline bool is_near(CGFloat left, CGFloat right, CGFloat tolerance = kHair) {
  return std::abs(left - right) <= tolerance;
}
inline bool is_near(CGPoint left, CGPoint right, CGFloat tolerance = kHair) {
  return is_near(left.x, right.x, tolerance) && is_near(left.y, right.y, tolerance);
}
inline bool is_near(CGSize left, CGSize right, CGFloat tolerance = kHair) {
  return is_near(left.width, right.width, tolerance) &&
         is_near(left.height, right.height, tolerance);
}
inline bool is_near(CGRect left, CGRect right, CGFloat tolerance = kHair) {
  return is_near(left.origin, right.origin, tolerance) && is_near(left.size, right.size, tolerance);
}

MATCHER_P(IsNear, expected, "") {
  return is_near(arg, expected);
}

/// Animations end on time, but tests look only once a frame.
MATCHER_P(IsSoonAfter, seconds, "") {
  return arg >= seconds - 1e-6 && arg <= seconds + 1.5 / 60;
}

}  // namespace host::test
