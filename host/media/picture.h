#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "host/media/picture_header.h"

namespace host::media {

// A decoded picture: premultiplied 0xAARRGGBB words, rows without padding, top row first. This is
// the format of Cairo's ARGB32 surfaces, so it can be drawn without conversion.
struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;

  std::size_t byte_count() const { return pixels.size() * sizeof(std::uint32_t); }
};

// No cover needs more; decoding this much already takes 144 MB temporarily.
constexpr std::int64_t most_picture_pixels = 6000LL * 6000LL;

// Decodes a JPEG or PNG so that its longer side is at most `longest_side` pixels; a smaller picture
// keeps its size. Empty for other formats, for damaged bytes and for pictures of more than
// `most_picture_pixels`, which are refused before any memory is allocated for them.
std::optional<Picture> decode_picture(std::span<const std::uint8_t> bytes, int longest_side);

// The size of a picture scaled down so that its longer side is at most `longest_side` pixels, never
// enlarged: the size of what `decode_picture` returns.
struct PictureSize {
  int width = 0;
  int height = 0;
};
PictureSize fitted_size(int width, int height, int longest_side);

// Reads a picture's header without decoding it. The result is not usable when `decode_picture`
// would refuse the picture for its format or its size.
PictureHeader read_picture_header(std::span<const std::uint8_t> bytes);
// The same for a regular file; reads only its beginning.
PictureHeader read_picture_file_header(const std::string& path);

// The picture as JPEG bytes, on black where it is transparent; empty when there is no memory.
std::vector<std::uint8_t> jpeg_of(const Picture& picture);

// A picture file as JPEG bytes, scaled down to `longest_side`; empty when it cannot be read.
std::vector<std::uint8_t> jpeg_from_file(const std::string& path, int longest_side);

}  // namespace host::media
