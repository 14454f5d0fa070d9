#pragma once

#include <string>

#include "tests/random_use/random_hand.h"

namespace random_use {

// Console lines that change the device's files while it runs, as other programs do.

/// Switches the panel on, as a user does in the settings of a new phone.
std::string good_settings();
/// Changes some settings to random values, in one step, as the settings pane does.
std::string random_settings(RandomHand& hand);
/// Truncates, empties, corrupts or removes the settings file. The next write repairs it.
std::string damaged_settings(RandomHand& hand);
/// Moves a song out of the folder, or back into it.
std::string moved_song(RandomHand& hand);

}  // namespace random_use
