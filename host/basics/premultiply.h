#pragma once

#include <cstddef>
#include <cstdint>

namespace host {

/// Returns a premultiplied pixel: the colours times alpha, rounded to the nearest level,
/// identically on every processor.
constexpr std::uint32_t premultiplied(std::uint32_t red, std::uint32_t green, std::uint32_t blue,
                                      std::uint32_t alpha) {
  const auto scaled = [alpha](std::uint32_t channel) { return (channel * alpha + 127) / 255; };
  return alpha << 24 | scaled(red) << 16 | scaled(green) << 8 | scaled(blue);
}

/// Converts a row of red, green, blue and alpha bytes to premultiplied pixels.
inline void premultiply_row(const std::uint8_t* from, std::uint32_t* to, int width) {
  for (int x = 0; x < width; ++x, from += 4)
    to[x] = premultiplied(from[0], from[1], from[2], from[3]);
}

}  // namespace host
