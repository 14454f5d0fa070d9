#include "host/quartzcore/backdrop_filter.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace host::quartzcore {
namespace {

// A picture that will be blurred this much loses nothing by being blurred small.
constexpr int kLargestReduction = 8;
// Three passes of a box come close to the bell curve of the platform's blur.
constexpr int kPasses = 3;

struct Pixels {
  std::uint8_t* bytes;
  int stride;
  int width;
  int height;

  std::uint8_t* at(int x, int y) const { return bytes + y * stride + x * 4; }
};

Pixels pixels_of(const Surface& surface) {
  cairo_surface_flush(surface.get());
  return {cairo_image_surface_get_data(surface.get()),
          cairo_image_surface_get_stride(surface.get()), width_of(surface), height_of(surface)};
}

/// One line of `count` pixels `step` bytes apart; pixels beyond its ends repeat the last one.
void blur_line(std::uint8_t* line, int count, int step, int radius,
               std::vector<std::uint8_t>& copy) {
  copy.resize(static_cast<std::size_t>(count) * 4);
  for (int i = 0; i < count; ++i)
    std::copy_n(line + i * step, 4, copy.data() + i * 4);
  const int size = 2 * radius + 1;
  for (int channel = 0; channel < 3; ++channel) {
    const auto source = [&](int i) {
      return static_cast<int>(
          copy[static_cast<std::size_t>(std::clamp(i, 0, count - 1) * 4 + channel)]);
    };
    int sum = 0;
    for (int i = -radius; i <= radius; ++i)
      sum += source(i);
    for (int i = 0; i < count; ++i) {
      line[i * step + channel] = static_cast<std::uint8_t>((sum + size / 2) / size);
      sum += source(i + radius + 1) - source(i - radius);
    }
  }
}

void blur(const Pixels& pixels, int radius) {
  if (radius < 1) return;
  std::vector<std::uint8_t> copy;
  for (int pass = 0; pass < kPasses; ++pass) {
    for (int y = 0; y < pixels.height; ++y)
      blur_line(pixels.at(0, y), pixels.width, 4, radius, copy);
    for (int x = 0; x < pixels.width; ++x)
      blur_line(pixels.at(x, 0), pixels.height, pixels.stride, radius, copy);
  }
}

struct Mixer {
  const BackdropLook& look;
  double luminance_sum = 0;

  static double screened(double base, double light, double alpha) {
    return base + (1 - (1 - base) * (1 - light) - base) * alpha;
  }

  void mix(std::uint8_t* pixel) {
    double channels[3] = {pixel[2] / 255.0, pixel[1] / 255.0, pixel[0] / 255.0};
    const double luminance = 0.2126 * channels[0] + 0.7152 * channels[1] + 0.0722 * channels[2];
    luminance_sum += luminance;
    const double tint[3] = {look.tint.red, look.tint.green, look.tint.blue};
    const double light[3] = {look.lighten.red, look.lighten.green, look.lighten.blue};
    for (int i = 0; i < 3; ++i) {
      double value = luminance + (channels[i] - luminance) * look.saturation + look.brightness;
      value = std::clamp(value, 0.0, 1.0);
      value += (look.gray_level - value) * look.gray_alpha;
      value += (tint[i] - value) * look.tint.alpha;
      value = screened(value, light[i], look.lighten.alpha);
      pixel[2 - i] = static_cast<std::uint8_t>(std::lround(std::clamp(value, 0.0, 1.0) * 255));
    }
    pixel[3] = 255;
  }
};

}  // namespace

FilteredBackdrop filter_backdrop(const Surface& behind, const BackdropLook& look, double scale) {
  const double radius = look.blur_radius * scale;
  int reduction = 1;
  while (reduction < kLargestReduction && radius >= reduction * 4)
    reduction *= 2;
  const int width = width_of(behind);
  const int height = height_of(behind);
  Surface small = scaled_copy(behind, (width + reduction - 1) / reduction,
                              (height + reduction - 1) / reduction);
  const Pixels pixels = pixels_of(small);
  // Three boxes of radius r spread like one bell of deviation about r; the platform's radius is
  // twice that deviation.
  blur(pixels, static_cast<int>(std::lround(radius / reduction / 2)));
  Mixer mixer{look};
  for (int y = 0; y < pixels.height; ++y) {
    for (int x = 0; x < pixels.width; ++x)
      mixer.mix(pixels.at(x, y));
  }
  cairo_surface_mark_dirty(small.get());
  return {scaled_copy(small, width, height),
          mixer.luminance_sum / (static_cast<double>(pixels.width) * pixels.height)};
}

}  // namespace host::quartzcore
