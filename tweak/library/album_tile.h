#pragma once

#include "tweak/Sonavue2.h"
#include "tweak/look/measures.h"

// A tile of the album strip: a view whose first subview is the cover and whose second is the
// album's title. Its layer's name is the album's persistent ID.

namespace sonavue {

/// The frame, in points, of tile `index` in a grid of two columns of squares.
inline CGRect grid_frame(NSUInteger index, CGFloat side) {
  const auto column = static_cast<CGFloat>(index % 2);
  const auto row = static_cast<CGFloat>(index / 2);
  return {kTileGap + column * (side + kTileGap), kTileGap + row * (side + kTileGap), side, side};
}

/// The side of a tile if two tiles and their gaps fill `width`.
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
