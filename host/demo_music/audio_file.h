#pragma once

#include <span>
#include <string>

namespace host::media {

// Writes one channel of samples in the format that the suffix names: .flac, .ogg, .opus, .mp3 or
// .wav. Opus allows rates of 8, 12, 16, 24 and 48 kHz only. Returns false if the file cannot be
// written completely.
bool write_audio(const std::string& path, std::span<const float> samples, int rate);

}  // namespace host::media
