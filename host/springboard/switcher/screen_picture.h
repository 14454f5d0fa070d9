#pragma once

#include "platform/UIKit/UIImage.h"

namespace host::springboard {

// Pictures of the screen for the switcher's cards, with half as many pixels each way as the screen
// has: a card is hardly larger. Autoreleased.

/// The application in front, or the home screen, with the status bar.
UIImage picture_of_front();
/// The home screen, whatever lies on it.
UIImage picture_of_home();

}  // namespace host::springboard
