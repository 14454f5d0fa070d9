#pragma once

#include <vector>

#include "platform/UIKit/UIWindow.h"

namespace host::springboard {

/// A window other than the home screen and the status bar, and a point where it takes touches.
struct WindowInTheWay {
  UIWindow window;
  CGPoint point;
};

/// Returns the windows that keep fingers from the home screen, from top to bottom of the screen.
std::vector<WindowInTheWay> windows_in_the_way();

}  // namespace host::springboard
