#include "host/uikit/drawing/hue.h"

#include <algorithm>
#include <cmath>

namespace host::uikit {

Rgb rgb_from(Hsb color) {
  const auto channel = [&](double offset) {
    const double position = std::fmod(offset + color.hue * 6, 6);
    const double distance = std::clamp(std::min(position, 4 - position), 0.0, 1.0);
    return color.brightness * (1 - color.saturation * distance);
  };
  return {channel(5), channel(3), channel(1)};
}

Hsb hsb_from(Rgb color) {
  const double high = std::max({color.red, color.green, color.blue});
  const double low = std::min({color.red, color.green, color.blue});
  const double range = high - low;
  if (range == 0) return {0, 0, high};
  double sextant;
  if (high == color.red) {
    sextant = (color.green - color.blue) / range;
  } else if (high == color.green) {
    sextant = (color.blue - color.red) / range + 2;
  } else {
    sextant = (color.red - color.green) / range + 4;
  }
  const double hue = sextant / 6;
  return {hue < 0 ? hue + 1 : hue, range / high, high};
}

}  // namespace host::uikit
