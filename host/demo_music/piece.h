#pragma once

#include <cstdint>
#include <vector>

#include "host/demo_music/albums.h"

namespace host::media {

// 24 kHz is a rate that every format of the demo music allows, and halves the work of 48.
constexpr int demo_sample_rate = 24000;

// Composes and plays a short piece: chords, a bass, an arpeggio and, where the mood has them,
// drums. The same mood and seed make the same samples; another seed changes key, tempo, chords and
// patterns. One channel, within -1 and 1, 30 to 60 seconds.
std::vector<float> play_piece(DemoMood mood, std::uint32_t seed);

}  // namespace host::media
