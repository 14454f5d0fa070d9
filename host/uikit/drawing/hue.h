#pragma once

namespace host::uikit {

/// Hue, saturation and brightness from 0 to 1; hue 0 is red.
struct Hsb {
  double hue = 0, saturation = 0, brightness = 0;
};

struct Rgb {
  double red = 0, green = 0, blue = 0;
};

Rgb rgb_from(Hsb color);
Hsb hsb_from(Rgb color);

}  // namespace host::uikit
