#pragma once

#include "platform/UIKit/UIView.h"

namespace host::springboard {

/// Fills the dock with its translucent background.
void add_dock_ground(UIView dock);

}  // namespace host::springboard
