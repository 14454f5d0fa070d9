#pragma once

#include <string>

#include "tests/random_use/random_hand.h"

namespace random_use {

// What other programs do to the device's files while it runs, as lines of the console.

/// The panel switched on, as somebody does in the settings of a new phone.
std::string good_settings();
/// Some settings changed to some value, in one step, as their pane does.
std::string random_settings(RandomHand& hand);
/// The file cut, emptied, made something else or taken away. The next write mends it.
std::string damaged_settings(RandomHand& hand);
/// A song taken out of the folder, or one that was taken put back.
std::string moved_song(RandomHand& hand);

}  // namespace random_use
