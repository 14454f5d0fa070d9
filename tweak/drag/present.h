#pragma once

#include "objc/block.h"
#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// Moves the icon to the top of the screen and fades the panel in.
void present(SpringBoard self);

/// Fades the panel out and moves the icon home. Then calls `completion` with YES, or with NO if
/// another movement came in between.
void dismis(SpringBoard self, objc::Block<void(BOOL)> completion);

/// Closes the panel in whatever form it is shown. A no-op if it is not shown.
void dismisWithNoAction(SpringBoard self);

}  // namespace sonavue
