#pragma once

#include "platform/UIKit/UIImage.h"

namespace host::springboard {

// Pictures of the screen for the switcher's cards, at half the screen's resolution: a card is
// hardly larger. Autoreleased.

/// The application in front, or the home screen, with the status bar.
UIImage picture_of_front();
/// The home screen, regardless of what covers it.
UIImage picture_of_home();

}  // namespace host::springboard
