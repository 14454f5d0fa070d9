#pragma once

#include "objc/encoding.h"

// The bindings are compiled where there is no hosted C++ library.
constexpr CGFloat CGLesser(CGFloat left, CGFloat right) {
  return right < left ? right : left;
}
constexpr CGFloat CGGreater(CGFloat left, CGFloat right) {
  return left < right ? right : left;
}

struct CGPoint {
  CGFloat x = 0;
  CGFloat y = 0;
  friend constexpr bool operator==(const CGPoint&, const CGPoint&) = default;
};

struct CGSize {
  CGFloat width = 0;
  CGFloat height = 0;
  friend constexpr bool operator==(const CGSize&, const CGSize&) = default;
};

struct CGRect {
  CGPoint origin;
  CGSize size;

  constexpr CGRect() = default;
  constexpr CGRect(CGPoint at, CGSize extent) : origin(at), size(extent) {}
  constexpr CGRect(CGFloat x, CGFloat y, CGFloat width, CGFloat height)
      : origin{x, y}, size{width, height} {}
  friend constexpr bool operator==(const CGRect&, const CGRect&) = default;

  constexpr CGFloat min_x() const { return origin.x; }
  constexpr CGFloat min_y() const { return origin.y; }
  constexpr CGFloat max_x() const { return origin.x + size.width; }
  constexpr CGFloat max_y() const { return origin.y + size.height; }
  constexpr CGPoint centre() const {
    return {origin.x + size.width / 2, origin.y + size.height / 2};
  }
  constexpr bool contains(CGPoint p) const {
    return p.x >= min_x() && p.x < max_x() && p.y >= min_y() && p.y < max_y();
  }
};

/// x' = a x + c y + tx, y' = b x + d y + ty.
struct CGAffineTransform {
  CGFloat a = 1, b = 0, c = 0, d = 1, tx = 0, ty = 0;
  friend constexpr bool operator==(const CGAffineTransform&, const CGAffineTransform&) = default;
};

// clang-format off
template <> struct objc::Encode<CGPoint> { static constexpr FixedString text = "{CGPoint=dd}"; };
template <> struct objc::Encode<CGSize> { static constexpr FixedString text = "{CGSize=dd}"; };
template <> struct objc::Encode<CGRect> {
  static constexpr FixedString text = "{CGRect={CGPoint=dd}{CGSize=dd}}";
};
template <> struct objc::Encode<CGAffineTransform> {
  static constexpr FixedString text = "{CGAffineTransform=dddddd}";
};
// clang-format on
