#pragma once

#include "objc/block.h"

namespace sonavue {

/// Keeps the icon's frame as the place to bring it back to.
void keep_icon_home();

/// The last step of every closing: the icon flies to its slot while the backdrop goes, then the
/// panel is closed. The block hears YES, or NO when another movement came in between.
void bring_icon_home(objc::OwnedBlock<void(BOOL)> closed = {});

/// Closes a panel whose drag has lost its finger: the content goes while the icon flies.
void go_straight_home();

}  // namespace sonavue
