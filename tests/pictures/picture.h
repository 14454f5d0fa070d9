#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace sonavue::test {

/// One pixel with straight (not premultiplied) components, 0 to 255.
struct Pixel {
  std::uint8_t red;
  std::uint8_t green;
  std::uint8_t blue;
  std::uint8_t alpha;

  bool operator==(const Pixel&) const = default;
};

/// A rendered picture, rows from the top, `width * height` pixels.
struct Picture {
  int width;
  int height;
  std::vector<Pixel> pixels;

  const Pixel& at(int x, int y) const { return pixels[static_cast<std::size_t>(y) * width + x]; }

  /// The share of pixels, 0 to 1, that are not fully transparent.
  double visible_share() const;

  bool is_opaque() const;
};

/// Reads a picture that the build rendered, by its path below the build folder; empty when the file
/// is missing or not a picture.
std::optional<Picture> rendered_picture(const std::string& path);

}  // namespace sonavue::test
