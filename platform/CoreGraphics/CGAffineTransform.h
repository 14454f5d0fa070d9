#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

inline constexpr CGAffineTransform CGAffineTransformIdentity{};

constexpr CGAffineTransform CGAffineTransformMake(CGFloat a, CGFloat b, CGFloat c, CGFloat d,
                                                  CGFloat tx, CGFloat ty) {
  return {a, b, c, d, tx, ty};
}
constexpr CGAffineTransform CGAffineTransformMakeTranslation(CGFloat tx, CGFloat ty) {
  return {1, 0, 0, 1, tx, ty};
}
constexpr CGAffineTransform CGAffineTransformMakeScale(CGFloat sx, CGFloat sy) {
  return {sx, 0, 0, sy, 0, 0};
}
inline CGAffineTransform CGAffineTransformMakeRotation(CGFloat angle) {
  const CGFloat cosine = __builtin_cos(angle);
  const CGFloat sine = __builtin_sin(angle);
  return {cosine, sine, -sine, cosine, 0, 0};
}

/// Applies `first`, then `second`.
constexpr CGAffineTransform CGAffineTransformConcat(const CGAffineTransform& first,
                                                    const CGAffineTransform& second) {
  return {first.a * second.a + first.b * second.c,
          first.a * second.b + first.b * second.d,
          first.c * second.a + first.d * second.c,
          first.c * second.b + first.d * second.d,
          first.tx * second.a + first.ty * second.c + second.tx,
          first.tx * second.b + first.ty * second.d + second.ty};
}
constexpr CGAffineTransform CGAffineTransformTranslate(const CGAffineTransform& transform,
                                                       CGFloat tx, CGFloat ty) {
  return CGAffineTransformConcat(CGAffineTransformMakeTranslation(tx, ty), transform);
}
constexpr CGAffineTransform CGAffineTransformScale(const CGAffineTransform& transform, CGFloat sx,
                                                   CGFloat sy) {
  return CGAffineTransformConcat(CGAffineTransformMakeScale(sx, sy), transform);
}
inline CGAffineTransform CGAffineTransformRotate(const CGAffineTransform& transform,
                                                 CGFloat angle) {
  return CGAffineTransformConcat(CGAffineTransformMakeRotation(angle), transform);
}
constexpr bool CGAffineTransformIsIdentity(const CGAffineTransform& transform) {
  return transform == CGAffineTransformIdentity;
}
constexpr bool CGAffineTransformEqualToTransform(const CGAffineTransform& left,
                                                 const CGAffineTransform& right) {
  return left == right;
}

/// The inverse. A transform that has no inverse is returned unchanged.
constexpr CGAffineTransform CGAffineTransformInvert(const CGAffineTransform& t) {
  const CGFloat determinant = t.a * t.d - t.b * t.c;
  if (determinant == 0) return t;
  return {t.d / determinant,
          -t.b / determinant,
          -t.c / determinant,
          t.a / determinant,
          (t.c * t.ty - t.d * t.tx) / determinant,
          (t.b * t.tx - t.a * t.ty) / determinant};
}

constexpr CGPoint CGPointApplyAffineTransform(CGPoint point, const CGAffineTransform& t) {
  return {t.a * point.x + t.c * point.y + t.tx, t.b * point.x + t.d * point.y + t.ty};
}

/// The smallest axis-aligned rectangle that contains the transformed one.
constexpr CGRect CGRectApplyAffineTransform(CGRect rect, const CGAffineTransform& t) {
  const CGPoint corners[] = {CGPointApplyAffineTransform({rect.min_x(), rect.min_y()}, t),
                             CGPointApplyAffineTransform({rect.max_x(), rect.min_y()}, t),
                             CGPointApplyAffineTransform({rect.max_x(), rect.max_y()}, t),
                             CGPointApplyAffineTransform({rect.min_x(), rect.max_y()}, t)};
  CGPoint low = corners[0];
  CGPoint high = corners[0];
  for (const CGPoint& corner : corners) {
    low = {CGLesser(low.x, corner.x), CGLesser(low.y, corner.y)};
    high = {CGGreater(high.x, corner.x), CGGreater(high.y, corner.y)};
  }
  return {low.x, low.y, high.x - low.x, high.y - low.y};
}
