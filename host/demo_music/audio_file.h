#pragma once

#include <span>
#include <string>

namespace host::media {

// Writes one channel of samples in the format that the suffix names: .flac, .ogg, .opus, .mp3 or
// .wav. Opus allows rates of 8, 12, 16, 24 and 48 kHz only. False when it cannot be written whole.
bool write_audio(const std::string& path, std::span<const float> samples, int rate);

}  // namespace host::media
