#pragma once

#include <algorithm>

namespace host {

/// A rectangle of whole pixels of the screen.
struct PixelRect {
  int x = 0, y = 0, width = 0, height = 0;
  friend constexpr bool operator==(const PixelRect&, const PixelRect&) = default;

  constexpr int right() const { return x + width; }
  constexpr int bottom() const { return y + height; }
  constexpr bool is_empty() const { return width <= 0 || height <= 0; }
  constexpr bool contains(const PixelRect& other) const {
    return other.x >= x && other.y >= y && other.right() <= right() && other.bottom() <= bottom();
  }
  constexpr long area() const { return static_cast<long>(width) * height; }
};

constexpr PixelRect from_edges(int left, int top, int right, int bottom) {
  if (right <= left || bottom <= top) return {};
  return {left, top, right - left, bottom - top};
}
constexpr PixelRect intersection(const PixelRect& a, const PixelRect& b) {
  return from_edges(std::max(a.x, b.x), std::max(a.y, b.y), std::min(a.right(), b.right()),
                    std::min(a.bottom(), b.bottom()));
}
constexpr bool intersects(const PixelRect& a, const PixelRect& b) {
  return !intersection(a, b).is_empty();
}
constexpr PixelRect united(const PixelRect& a, const PixelRect& b) {
  if (a.is_empty()) return b;
  if (b.is_empty()) return a;
  return from_edges(std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.right(), b.right()),
                    std::max(a.bottom(), b.bottom()));
}

}  // namespace host
