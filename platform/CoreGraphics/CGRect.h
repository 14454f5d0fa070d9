#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

inline constexpr CGPoint CGPointZero{};
inline constexpr CGSize CGSizeZero{};
inline constexpr CGRect CGRectZero{};

constexpr CGPoint CGPointMake(CGFloat x, CGFloat y) {
  return {x, y};
}
constexpr CGSize CGSizeMake(CGFloat width, CGFloat height) {
  return {width, height};
}
constexpr CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
  return {x, y, width, height};
}
constexpr bool CGRectIsEmpty(CGRect rect) {
  return rect.size.width <= 0 || rect.size.height <= 0;
}
constexpr bool CGRectContainsPoint(CGRect rect, CGPoint point) {
  return rect.contains(point);
}
constexpr CGRect CGRectInset(CGRect rect, CGFloat dx, CGFloat dy) {
  return {rect.origin.x + dx, rect.origin.y + dy, rect.size.width - 2 * dx,
          rect.size.height - 2 * dy};
}
constexpr CGRect CGRectOffset(CGRect rect, CGFloat dx, CGFloat dy) {
  return {rect.origin.x + dx, rect.origin.y + dy, rect.size.width, rect.size.height};
}

/// The area that both cover; `CGRectZero` if they do not overlap.
constexpr CGRect CGRectIntersection(CGRect left, CGRect right) {
  const CGFloat x = CGGreater(left.min_x(), right.min_x());
  const CGFloat y = CGGreater(left.min_y(), right.min_y());
  const CGFloat width = CGLesser(left.max_x(), right.max_x()) - x;
  const CGFloat height = CGLesser(left.max_y(), right.max_y()) - y;
  if (width <= 0 || height <= 0) return {};
  return {x, y, width, height};
}
constexpr bool CGRectIntersectsRect(CGRect left, CGRect right) {
  return !CGRectIsEmpty(CGRectIntersection(left, right));
}

/// The smallest rectangle that contains both. An empty one is ignored.
constexpr CGRect CGRectUnion(CGRect left, CGRect right) {
  if (CGRectIsEmpty(left)) return right;
  if (CGRectIsEmpty(right)) return left;
  const CGFloat x = CGLesser(left.min_x(), right.min_x());
  const CGFloat y = CGLesser(left.min_y(), right.min_y());
  return {x, y, CGGreater(left.max_x(), right.max_x()) - x,
          CGGreater(left.max_y(), right.max_y()) - y};
}

/// The smallest rectangle with integral coordinates that contains `rect`.
inline CGRect CGRectIntegral(CGRect rect) {
  const CGFloat x = __builtin_floor(rect.min_x());
  const CGFloat y = __builtin_floor(rect.min_y());
  return {x, y, __builtin_ceil(rect.max_x()) - x, __builtin_ceil(rect.max_y()) - y};
}
