#pragma once

#include "objc/block.h"
#include "platform/CoreGraphics/CGGeometry.h"

namespace sonavue {

/// Saves the icon's frame as the place to return it to.
void save_icon_home();

/// Moves the icon without changing its size. A no-op while the banner is shown, which uses only the
/// twin, and once the system has moved the icon to another list.
void move_icon(CGFloat x, CGFloat y);

/// The last step of every closing: moves the icon to its slot while the backdrop fades out, then
/// marks the panel as closed. Calls `closed` with YES, or with NO if another movement came in
/// between.
void bring_icon_home(objc::OwnedBlock<void(BOOL)> closed = {});

/// Closes a panel whose drag was interrupted: fades the content out while the icon moves home.
void go_straight_home();

}  // namespace sonavue
