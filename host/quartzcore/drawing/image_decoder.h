#pragma once

#include <optional>
#include <span>

#include "host/quartzcore/drawing/image.h"

// PNG, JPEG and every other format that gdk-pixbuf reads, turned upright. Pictures with a side
// above `kLargestSide` are shrunk while they are decoded.
namespace host::quartzcore {

inline constexpr int kLargestSide = 4096;

struct DecodedImage {
  Surface pixels;
  Opacity opacity = Opacity::Translucent;
};

/// Without pixels for invalid bytes.
DecodedImage decode_image(std::span<const unsigned char> bytes);

/// What is known of a picture before its pixels are decoded.
struct ImageHeader {
  int width = 0;
  int height = 0;
  /// Translucent if pixels may be.
  Opacity opacity = Opacity::Translucent;
};

/// Reads only the beginning of a picture in the usual formats. Empty for what is no picture.
std::optional<ImageHeader> read_image_header(std::span<const unsigned char> bytes);

}  // namespace host::quartzcore
