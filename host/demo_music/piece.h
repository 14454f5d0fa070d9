#pragma once

#include <cstdint>
#include <vector>

#include "host/demo_music/albums.h"

namespace host::media {

// Every format of the demo music allows 24 kHz, which takes half the work of 48.
constexpr int demo_sample_rate = 24000;

// Composes and renders a short piece: chords, a bass, an arpeggio and, in some moods, drums. The
// same mood and seed make the same samples; another seed changes key, tempo, chords and patterns.
// Returns one channel of 30 to 60 seconds, with samples from -1 to 1.
std::vector<float> play_piece(DemoMood mood, std::uint32_t seed);

}  // namespace host::media
