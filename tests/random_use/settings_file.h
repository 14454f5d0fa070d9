#pragma once

#include <filesystem>

#include "tests/random_use/random_hand.h"

namespace random_use {

// What other programs do to the device's files while it runs.

/// The panel switched on, as somebody does in the settings of a new phone.
void write_first_settings(const std::filesystem::path& root);
/// Some settings changed to some value, in one step, as their pane does.
void write_random_settings(const std::filesystem::path& root, RandomHand& hand);
/// The file cut, emptied, made something else or taken away. The next write mends it.
void damage_settings_file(const std::filesystem::path& root, RandomHand& hand);
/// A song taken out of the folder, or one that was taken put back.
void move_random_song(const std::filesystem::path& music, RandomHand& hand);

}  // namespace random_use
