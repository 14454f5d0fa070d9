#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

/// Points are row vectors, multiplied by this matrix from the right; m41, m42, m43 translate.
struct CATransform3D {
  CGFloat m11 = 1, m12 = 0, m13 = 0, m14 = 0;
  CGFloat m21 = 0, m22 = 1, m23 = 0, m24 = 0;
  CGFloat m31 = 0, m32 = 0, m33 = 1, m34 = 0;
  CGFloat m41 = 0, m42 = 0, m43 = 0, m44 = 1;
  friend constexpr bool operator==(const CATransform3D&, const CATransform3D&) = default;
};

template <>
struct objc::Encode<CATransform3D> {
  static constexpr FixedString text = "{CATransform3D=dddddddddddddddd}";
};

inline constexpr CATransform3D CATransform3DIdentity{};

constexpr bool CATransform3DIsIdentity(const CATransform3D& transform) {
  return transform == CATransform3DIdentity;
}
constexpr bool CATransform3DEqualToTransform(const CATransform3D& left,
                                             const CATransform3D& right) {
  return left == right;
}

constexpr CATransform3D CATransform3DMakeTranslation(CGFloat tx, CGFloat ty, CGFloat tz) {
  CATransform3D made;
  made.m41 = tx;
  made.m42 = ty;
  made.m43 = tz;
  return made;
}
constexpr CATransform3D CATransform3DMakeScale(CGFloat sx, CGFloat sy, CGFloat sz) {
  CATransform3D made;
  made.m11 = sx;
  made.m22 = sy;
  made.m33 = sz;
  return made;
}

constexpr CATransform3D CATransform3DMakeAffineTransform(const CGAffineTransform& affine) {
  CATransform3D made;
  made.m11 = affine.a;
  made.m12 = affine.b;
  made.m21 = affine.c;
  made.m22 = affine.d;
  made.m41 = affine.tx;
  made.m42 = affine.ty;
  return made;
}
constexpr CGAffineTransform CATransform3DGetAffineTransform(const CATransform3D& transform) {
  return {transform.m11, transform.m12, transform.m21, transform.m22, transform.m41, transform.m42};
}

/// Rotates by `angle` radians around the axis (x, y, z). A zero axis gives the identity.
inline CATransform3D CATransform3DMakeRotation(CGFloat angle, CGFloat x, CGFloat y, CGFloat z) {
  CATransform3D made;
  const CGFloat length = __builtin_sqrt(x * x + y * y + z * z);
  if (length == 0) return made;
  x /= length;
  y /= length;
  z /= length;
  const CGFloat cosine = __builtin_cos(angle);
  const CGFloat sine = __builtin_sin(angle);
  const CGFloat rest = 1 - cosine;
  made.m11 = cosine + x * x * rest;
  made.m12 = x * y * rest + z * sine;
  made.m13 = x * z * rest - y * sine;
  made.m21 = x * y * rest - z * sine;
  made.m22 = cosine + y * y * rest;
  made.m23 = y * z * rest + x * sine;
  made.m31 = x * z * rest + y * sine;
  made.m32 = y * z * rest - x * sine;
  made.m33 = cosine + z * z * rest;
  return made;
}

/// Applies `first`, then `second`.
inline CATransform3D CATransform3DConcat(const CATransform3D& first, const CATransform3D& second) {
  CGFloat left[4][4], right[4][4], product[4][4] = {};
  __builtin_memcpy(left, &first, sizeof left);
  __builtin_memcpy(right, &second, sizeof right);
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 4; ++column) {
      for (int i = 0; i < 4; ++i)
        product[row][column] += left[row][i] * right[i][column];
    }
  }
  CATransform3D made;
  __builtin_memcpy(&made, product, sizeof made);
  return made;
}

inline CATransform3D CATransform3DTranslate(const CATransform3D& transform, CGFloat tx, CGFloat ty,
                                            CGFloat tz) {
  return CATransform3DConcat(CATransform3DMakeTranslation(tx, ty, tz), transform);
}
inline CATransform3D CATransform3DScale(const CATransform3D& transform, CGFloat sx, CGFloat sy,
                                        CGFloat sz) {
  return CATransform3DConcat(CATransform3DMakeScale(sx, sy, sz), transform);
}
inline CATransform3D CATransform3DRotate(const CATransform3D& transform, CGFloat angle, CGFloat x,
                                         CGFloat y, CGFloat z) {
  return CATransform3DConcat(CATransform3DMakeRotation(angle, x, y, z), transform);
}

/// The inverse of a transform within the plane. One that has no inverse is returned unchanged.
constexpr CATransform3D CATransform3DInvert(const CATransform3D& transform) {
  const CGFloat determinant = transform.m11 * transform.m22 - transform.m12 * transform.m21;
  if (determinant == 0) return transform;
  CATransform3D made;
  made.m11 = transform.m22 / determinant;
  made.m12 = -transform.m12 / determinant;
  made.m21 = -transform.m21 / determinant;
  made.m22 = transform.m11 / determinant;
  made.m41 = (transform.m21 * transform.m42 - transform.m22 * transform.m41) / determinant;
  made.m42 = (transform.m12 * transform.m41 - transform.m11 * transform.m42) / determinant;
  made.m33 = transform.m33 == 0 ? 1 : 1 / transform.m33;
  made.m43 = -transform.m43 * made.m33;
  return made;
}
