#pragma once

#include "tweak/Sonavue2.h"

namespace sonavue {

inline CGFloat screen_width() {
  return rect.size.width;
}
inline CGFloat screen_height() {
  return rect.size.height;
}

/// What turns the icon's y, which is local to its list, into a y of the screen, so that the twin
/// covers the icon: the status bar's height on a page, the dock's top in the dock.
CGFloat icon_screen_offset();

/// How much of the backdrop shows when the finger is at `y`: whole from a quarter of the screen
/// upwards, nothing at the bottom edge. Not clamped.
CGFloat fade_ratio(CGFloat y);

/// Moves a view without changing its size.
void move_to(UIView view, CGFloat x, CGFloat y);
void move_to_x(UIView view, CGFloat x);
void move_to_y(UIView view, CGFloat y);

/// Puts the panel's window over the whole screen.
void cover_screen_with_window();

/// Hangs the window from the top of the screen by its last `height` points.
void hang_window(CGFloat height);

/// The offset of `container` at which the artwork stands in the middle of the screen.
CGPoint artwork_page_offset();

}  // namespace sonavue
