#include "host/demo_music/audio_file.h"

#include <sndfile.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>
#include <utility>

namespace host::media {
namespace {

constexpr std::array<std::pair<std::string_view, int>, 6> formats = {{
    {".flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_16},
    {".ogg", SF_FORMAT_OGG | SF_FORMAT_VORBIS},
    {".opus", SF_FORMAT_OGG | SF_FORMAT_OPUS},
    {".mp3", SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III},
    {".aiff", SF_FORMAT_AIFF | SF_FORMAT_PCM_16},
    {".wav", SF_FORMAT_WAV | SF_FORMAT_PCM_16},
}};

// The Vorbis encoder keeps a whole write on the stack, so writes are small.
constexpr std::size_t samples_per_write = 4096;

int format_for(std::string_view path) {
  for (const auto& [suffix, format] : formats) {
    if (path.ends_with(suffix)) return format;
  }
  return 0;
}

}  // namespace

bool write_audio(const std::string& path, std::span<const float> samples, int rate) {
  SF_INFO info{};
  info.samplerate = rate;
  info.channels = 1;
  info.format = format_for(path);
  SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
  if (file == nullptr) return false;
  bool is_whole = true;
  while (!samples.empty() && is_whole) {
    const auto part = samples.first(std::min(samples.size(), samples_per_write));
    const auto count = static_cast<sf_count_t>(part.size());
    is_whole = sf_write_float(file, part.data(), count) == count;
    samples = samples.subspan(part.size());
  }
  return sf_close(file) == 0 && is_whole;
}

}  // namespace host::media
