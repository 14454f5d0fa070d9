#pragma once

#include "tweak/Sonavue2.h"
#include "tweak/look/measures.h"

// A tile of the album strip: a view with the cover first and the album's title second. The name of
// its layer is the album's persistent id.

namespace sonavue {

/// The frame of the tile with this number in a grid of two columns, in points; tiles are squares.
inline CGRect grid_frame(NSUInteger index, CGFloat side) {
  const auto column = static_cast<CGFloat>(index % 2);
  const auto row = static_cast<CGFloat>(index / 2);
  return {kTileGap + column * (side + kTileGap), kTileGap + row * (side + kTileGap), side, side};
}

/// The side of two tiles that fill `width`.
inline CGFloat grid_side(CGFloat width) {
  return (width - 3 * kTileGap) * 0.5;
}

inline UIImageView cover_of(UIView tile) {
  return objc::cast<UIImageView>(tile.subviews().objectAtIndex(0));
}
inline UILabel title_of(UIView tile) {
  return objc::cast<UILabel>(tile.subviews().objectAtIndex(1));
}

}  // namespace sonavue
