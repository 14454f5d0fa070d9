#pragma once

#include "objc/block.h"
#include "platform/CoreGraphics/CGGeometry.h"

namespace sonavue {

/// Keeps the icon's frame as the place to bring it back to.
void keep_icon_home();

/// Moves the icon without changing its size. It stays where it is while the banner has the twin
/// alone, and for good once the system has moved it to another list.
void move_icon(CGFloat x, CGFloat y);

/// The last step of every closing: the icon flies to its slot while the backdrop goes, then the
/// panel is closed. The block hears YES, or NO when another movement came in between.
void bring_icon_home(objc::OwnedBlock<void(BOOL)> closed = {});

/// Closes a panel whose drag has lost its finger: the content goes while the icon flies.
void go_straight_home();

}  // namespace sonavue
