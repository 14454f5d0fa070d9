#pragma once

#include "objc/block.h"
#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// Takes the icon to the top of the screen and fades the panel in.
void present(SpringBoard self);

/// Fades the panel out and takes the icon home; then runs the block with YES.
void dismis(SpringBoard self, objc::Block<void(BOOL)> completion);

/// Closes whatever form of the panel is up. Harmless when none is.
void dismisWithNoAction(SpringBoard self);

}  // namespace sonavue
