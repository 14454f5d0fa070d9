#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "host/media/picture_header.h"

namespace host::media {

// A decoded picture: premultiplied 0xAARRGGBB words, rows without padding, top row first. This is
// what Cairo's ARGB32 surfaces hold, so it can be drawn without conversion.
struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;

  std::size_t byte_count() const { return pixels.size() * sizeof(std::uint32_t); }
};

// No cover needs more; decoding this much already takes 144 MB for a moment.
constexpr std::int64_t most_picture_pixels = 6000LL * 6000LL;

// Decodes a JPEG or PNG so that its longer side is at most `longest_side` pixels; a smaller picture
// keeps its size. Empty for anything else, for damaged bytes and for pictures of more than
// `most_picture_pixels`, which are refused before any memory is taken for them.
std::optional<Picture> decode_picture(std::span<const std::uint8_t> bytes, int longest_side);

// The size of a picture once its longer side is at most `longest_side` pixels, never enlarged. This
// is the size that `decode_picture` answers.
struct PictureSize {
  int width = 0;
  int height = 0;
};
PictureSize fitted_size(int width, int height, int longest_side);

// What a picture says of itself, without decoding it. Not usable when `decode_picture` would refuse
// it for its kind or its size.
PictureHeader read_picture_header(std::span<const std::uint8_t> bytes);
// The same of a plain file, of which only the beginning is read.
PictureHeader read_picture_file_header(const std::string& path);

// JPEG bytes of a picture file, scaled down to `longest_side`; empty when it cannot be read.
std::vector<std::uint8_t> jpeg_from_file(const std::string& path, int longest_side);

}  // namespace host::media
