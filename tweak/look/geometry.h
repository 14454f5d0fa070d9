#pragma once

#include "tweak/Sonavue2.h"

namespace sonavue {

inline CGFloat screen_width() {
  return rect.size.width;
}
inline CGFloat screen_height() {
  return rect.size.height;
}

/// The offset from the icon's y, which is local to its list, to the screen y at which the twin
/// covers the icon: the status bar's height on a page, the dock's top in the dock.
CGFloat icon_screen_offset();

/// The backdrop's alpha while the finger is at `y`: 1 at a quarter of the screen's height and more
/// above it, 0 at the bottom edge. Not clamped.
CGFloat fade_ratio(CGFloat y);

/// These move a view without changing its size.
void move_to(UIView view, CGFloat x, CGFloat y);
void move_to_x(UIView view, CGFloat x);
void move_to_y(UIView view, CGFloat y);

/// Makes the panel's window cover the whole screen.
void cover_screen_with_window();

/// Moves the window up until only its bottom `height` points are visible at the top of the screen.
void hang_window(CGFloat height);

/// The content offset of `container` at which the artwork is centred on the screen.
CGPoint artwork_page_offset();

}  // namespace sonavue
