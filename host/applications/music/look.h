#pragma once

#include "platform/UIKit/UIColor.h"

namespace host::music {

/// The application's red, for controls and the playing song.
inline UIColor accent_color() {
  return UIColor::colorWithRed(1, 45.0 / 255, 85.0 / 255, 1);
}
/// The colour of second lines.
inline UIColor second_line_color() {
  return UIColor::colorWithWhite(0.56, 1);
}
inline UIColor separator_color() {
  return UIColor::colorWithRed(200.0 / 255, 199.0 / 255, 204.0 / 255, 1);
}

inline constexpr CGFloat kMargin = 15;
/// The height of the bar at the bottom of the list.
inline constexpr CGFloat kMiniBarHeight = 56;

}  // namespace host::music
