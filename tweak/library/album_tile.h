#pragma once

#include "tweak/Sonavue2.h"

// A tile of the album strip: a view with the cover first and the album's title second. The name of
// its layer is the album's persistent id.

namespace sonavue {

inline constexpr CGFloat kTileGap = 10;
inline constexpr CGFloat kCoverCorner = 15;
inline constexpr CGFloat kTileTitleSize = 12;

inline NSString tile_font() {
  return "HelveticaNeue"_ns;
}

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

/// A label of one centred line in the font of the tiles; +1.
UILabel make_tile_title(CGRect frame, NSString text);

/// Lets a tap on the view send `action` to `target`.
void add_tap(UIView view, objc::Object target, objc::Sel action);

}  // namespace sonavue
