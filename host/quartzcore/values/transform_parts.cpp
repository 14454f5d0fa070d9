#include "host/quartzcore/values/transform_parts.h"

#include <cmath>
#include <cstring>
#include <numbers>

namespace host::quartzcore {
namespace {

bool stays_in_plane(const CATransform3D& t) {
  return t.m13 == 0 && t.m14 == 0 && t.m23 == 0 && t.m24 == 0 && t.m31 == 0 && t.m32 == 0 &&
         t.m34 == 0 && t.m44 == 1;
}

double mix(double from, double to, double fraction) {
  return from + (to - from) * fraction;
}

CATransform3D interpolate_numbers(const CATransform3D& from, const CATransform3D& to,
                                  double fraction) {
  double a[16], b[16];
  std::memcpy(a, &from, sizeof a);
  std::memcpy(b, &to, sizeof b);
  for (int i = 0; i < 16; ++i)
    a[i] = mix(a[i], b[i], fraction);
  CATransform3D mixed;
  std::memcpy(&mixed, a, sizeof a);
  return mixed;
}

}  // namespace

TransformParts parts_of(const CATransform3D& t) {
  TransformParts parts;
  parts.x = t.m41;
  parts.y = t.m42;
  parts.scale_x = std::hypot(t.m11, t.m12);
  if (parts.scale_x == 0) {
    parts.scale_y = std::hypot(t.m21, t.m22);
    return parts;
  }
  const double ux = t.m11 / parts.scale_x;
  const double uy = t.m12 / parts.scale_x;
  parts.rotation = std::atan2(uy, ux);
  parts.shear = t.m21 * ux + t.m22 * uy;
  parts.scale_y = t.m22 * ux - t.m21 * uy;
  return parts;
}

CATransform3D transform_of(const TransformParts& parts) {
  const double cosine = std::cos(parts.rotation);
  const double sine = std::sin(parts.rotation);
  CATransform3D t;
  t.m11 = parts.scale_x * cosine;
  t.m12 = parts.scale_x * sine;
  t.m21 = parts.shear * cosine - parts.scale_y * sine;
  t.m22 = parts.shear * sine + parts.scale_y * cosine;
  t.m41 = parts.x;
  t.m42 = parts.y;
  return t;
}

CATransform3D interpolate_transforms(const CATransform3D& from, const CATransform3D& to,
                                     double fraction) {
  if (!stays_in_plane(from) || !stays_in_plane(to)) return interpolate_numbers(from, to, fraction);
  const TransformParts a = parts_of(from);
  const TransformParts b = parts_of(to);
  const double turn = std::remainder(b.rotation - a.rotation, 2 * std::numbers::pi);
  CATransform3D mixed =
      transform_of({mix(a.scale_x, b.scale_x, fraction), mix(a.scale_y, b.scale_y, fraction),
                    mix(a.shear, b.shear, fraction), a.rotation + turn * fraction,
                    mix(a.x, b.x, fraction), mix(a.y, b.y, fraction)});
  mixed.m33 = mix(from.m33, to.m33, fraction);
  mixed.m43 = mix(from.m43, to.m43, fraction);
  return mixed;
}

}  // namespace host::quartzcore
