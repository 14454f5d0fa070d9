#include "host/media/jpeg_limits.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "host/media/picture.h"

namespace host::media {
namespace {

// Pixels of all scans together: dozens for the largest picture, and more for smaller ones.
constexpr std::int64_t most_scanned_pixels = 32 * most_picture_pixels;

constexpr std::uint8_t introducer = 0xff;
constexpr std::uint8_t start_of_scan = 0xda;

struct Frame {
  std::uint8_t coding = 0;
  std::int64_t pixels = 0;
};

bool is_frame(std::uint8_t marker) {
  constexpr std::uint8_t huffman_tables = 0xc4;
  constexpr std::uint8_t extension = 0xc8;
  constexpr std::uint8_t arithmetic_tables = 0xcc;
  return marker >= 0xc0 && marker <= 0xcf && marker != huffman_tables && marker != extension &&
         marker != arithmetic_tables;
}

bool has_segment(std::uint8_t marker) {
  return marker != 0x01 && (marker < 0xd0 || marker > 0xd9);
}

// The first frame, found as the decoder finds it: what is between segments is skipped.
std::optional<Frame> first_frame(std::span<const std::uint8_t> bytes) {
  const auto word = [bytes](std::size_t at) { return std::size_t{bytes[at]} << 8 | bytes[at + 1]; };
  for (std::size_t at = 0; at + 1 < bytes.size();) {
    const std::uint8_t marker = bytes[at + 1];
    if (bytes[at] != introducer || marker == 0 || marker == introducer) {
      ++at;
      continue;
    }
    at += 2;
    if (!has_segment(marker)) continue;
    if (marker == start_of_scan || at + 7 > bytes.size()) return std::nullopt;
    if (is_frame(marker)) {
      return Frame{marker, static_cast<std::int64_t>(word(at + 3)) *
                               static_cast<std::int64_t>(word(at + 5))};
    }
    at += word(at);
  }
  return std::nullopt;
}

// Other segments may contain the same two bytes, but not often enough to matter.
std::int64_t scans_in(std::span<const std::uint8_t> bytes) {
  std::int64_t scans = 0;
  for (auto at = bytes.begin(); at != bytes.end();) {
    at = std::find(at, bytes.end(), introducer);
    if (at == bytes.end() || ++at == bytes.end()) break;
    if (*at == start_of_scan) ++scans;
  }
  return scans;
}

}  // namespace

bool is_quick_jpeg(std::span<const std::uint8_t> bytes) {
  constexpr std::uint8_t last_huffman_coding = 0xc2;
  const auto frame = first_frame(bytes);
  if (!frame) return true;
  return frame->coding <= last_huffman_coding &&
         frame->pixels * scans_in(bytes) <= most_scanned_pixels;
}

}  // namespace host::media
