#include "host/media/adts.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
#include <optional>

namespace host::media {
namespace {

constexpr std::array sample_rates = {96000, 88200, 64000, 48000, 44100, 32000, 24000,
                                     22050, 16000, 12000, 11025, 8000,  7350};
constexpr double samples_per_frame = 1024;
constexpr std::size_t header_bytes = 7;
constexpr std::size_t id3_header_bytes = 10;
// The lengths of frames vary, so their mean is taken over some seconds.
constexpr int most_frames = 500;
// Fewer could be anything that happens to look like them.
constexpr int fewest_frames = 2;

struct AdtsFrame {
  int sample_rate;
  int channels;
  std::size_t length;
};

template <std::size_t count>
std::optional<std::array<std::uint8_t, count>> bytes_at(std::ifstream& file, std::size_t place) {
  std::array<std::uint8_t, count> bytes;
  file.seekg(static_cast<std::streamoff>(place));
  if (!file.read(reinterpret_cast<char*>(bytes.data()), count)) return std::nullopt;
  return bytes;
}

std::size_t end_of_id3_tag(std::ifstream& file) {
  const auto header = bytes_at<id3_header_bytes>(file, 0);
  if (!header || (*header)[0] != 'I' || (*header)[1] != 'D' || (*header)[2] != '3') return 0;
  std::size_t size = 0;
  for (std::size_t i = 6; i < id3_header_bytes; ++i)
    size = size << 7 | ((*header)[i] & 0x7fu);
  return id3_header_bytes + size;
}

std::optional<AdtsFrame> read_frame(std::ifstream& file, std::size_t place) {
  const auto header = bytes_at<header_bytes>(file, place);
  if (!header) return std::nullopt;
  const auto& bytes = *header;
  const bool is_frame = bytes[0] == 0xff && (bytes[1] & 0xf6u) == 0xf0;
  const std::size_t rate = bytes[2] >> 2 & 0xfu;
  const std::size_t length = (bytes[3] & 0x3u) << 11 | std::size_t{bytes[4]} << 3 | bytes[5] >> 5;
  if (!is_frame || rate >= sample_rates.size() || length <= header_bytes) return std::nullopt;
  const auto channels = static_cast<int>((bytes[2] & 1u) << 2 | bytes[3] >> 6);
  return AdtsFrame{sample_rates[rate], channels == 0 ? 2 : channels, length};
}

}  // namespace

AdtsSound read_adts(const std::string& path) {
  std::ifstream file{path, std::ios::binary | std::ios::ate};
  const auto size = static_cast<std::size_t>(std::max<std::streamoff>(file.tellg(), 0));
  const std::size_t start = end_of_id3_tag(file);
  file.clear();
  AdtsSound sound;
  std::size_t place = start;
  int frames = 0;
  for (; frames < most_frames; ++frames) {
    const auto frame = read_frame(file, place);
    if (!frame || place + frame->length > size) break;
    if (frames == 0) sound = {frame->sample_rate, frame->channels, 0};
    place += frame->length;
  }
  if (frames < fewest_frames) return {};
  const double bytes_per_frame = static_cast<double>(place - start) / frames;
  const double all_frames = static_cast<double>(size - start) / bytes_per_frame;
  sound.duration_seconds = all_frames * samples_per_frame / sound.sample_rate;
  return sound;
}

}  // namespace host::media
