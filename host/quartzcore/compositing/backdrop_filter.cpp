#include "host/quartzcore/compositing/backdrop_filter.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace host::quartzcore {
namespace {

// Blurring a reduced picture this much gives the same result.
constexpr int kLargestReduction = 8;
// Three passes of a box blur approximate the platform's Gaussian blur.
constexpr int kPasses = 3;
constexpr float kMost = 255;

Channels same(double value) {
  return Channels{} + static_cast<float>(value);
}

/// Pixels beyond the ends of a line repeat the last pixel.
class Line {
 public:
  void take(const Channels* pixels, int count) { copy_.assign(pixels, pixels + count); }
  const Channels& operator[](int i) const {
    return copy_[static_cast<std::size_t>(std::clamp(i, 0, static_cast<int>(copy_.size()) - 1))];
  }

 private:
  std::vector<Channels> copy_;
};

void blur_rows(SmallPicture& picture, int radius) {
  const Channels share = same(1.0 / (2 * radius + 1));
  Line source;
  for (int y = 0; y < picture.height; ++y) {
    Channels* row = picture.row(y);
    source.take(row, picture.width);
    Channels sum{};
    for (int i = -radius; i <= radius; ++i)
      sum += source[i];
    for (int x = 0; x < picture.width; ++x) {
      row[x] = sum * share;
      sum += source[x + radius + 1] - source[x - radius];
    }
  }
}

// Also row by row, with a sum for each column.
void blur_columns(SmallPicture& picture, int radius) {
  const Channels share = same(1.0 / (2 * radius + 1));
  const SmallPicture::Pixels copy = picture.pixels;
  const auto source = [&](int y) {
    return copy.data() +
           static_cast<std::ptrdiff_t>(std::clamp(y, 0, picture.height - 1)) * picture.width;
  };
  std::vector<Channels> sums(static_cast<std::size_t>(picture.width));
  for (int i = -radius; i <= radius; ++i) {
    for (int x = 0; x < picture.width; ++x)
      sums[static_cast<std::size_t>(x)] += source(i)[x];
  }
  for (int y = 0; y < picture.height; ++y) {
    const Channels* enters = source(y + radius + 1);
    const Channels* leaves = source(y - radius);
    Channels* row = picture.row(y);
    for (int x = 0; x < picture.width; ++x) {
      Channels& sum = sums[static_cast<std::size_t>(x)];
      row[x] = sum * share;
      sum += enters[x] - leaves[x];
    }
  }
}

void blur(SmallPicture& picture, int radius) {
  if (radius < 1) return;
  for (int pass = 0; pass < kPasses; ++pass) {
    blur_rows(picture, radius);
    blur_columns(picture, radius);
  }
}

/// The look as arithmetic on channels from 0 to 255. After the brightness limits it is a single
/// multiplication and addition.
class Mixer {
 public:
  explicit Mixer(const BackdropLook& look) : saturation_(same(look.saturation)) {
    towards(same(look.gray_level), look.gray_alpha);
    towards(channels_of(look.tint), look.tint.alpha);
  }

  Channels mix(const Channels& pixel) {
    const float luminance = 0.0722F * pixel[0] + 0.7152F * pixel[1] + 0.2126F * pixel[2];
    luminance_sum_ += static_cast<double>(luminance);
    const Channels gray = same(static_cast<double>(luminance));
    return limited(limited(gray + (pixel - gray) * saturation_) * factor_ + rest_);
  }
  double luminance_sum() const { return luminance_sum_ / static_cast<double>(kMost); }

 private:
  static Channels channels_of(const Rgba& color) {
    return Channels{static_cast<float>(color.blue), static_cast<float>(color.green),
                    static_cast<float>(color.red), 1};
  }
  static Channels limited(const Channels& value) {
    const Channels low = value < same(0) ? same(0) : value;
    return low > same(kMost) ? same(kMost) : low;
  }
  void towards(const Channels& color, double alpha) {
    factor_ *= same(1 - alpha);
    rest_ = rest_ * same(1 - alpha) + color * same(alpha * static_cast<double>(kMost));
  }

  Channels saturation_;
  Channels factor_ = same(1);
  Channels rest_ = same(0);
  double luminance_sum_ = 0;
};

}  // namespace

int reduction_for(const BackdropLook& look, double scale) {
  const double radius = look.blur_radius * scale;
  int reduction = 1;
  while (reduction < kLargestReduction && radius >= reduction * 4)
    reduction *= 2;
  return reduction;
}

double filter_backdrop(SmallPicture& picture, const BackdropLook& look, double scale) {
  // Three boxes of radius r have about the standard deviation r; the platform's radius is twice the
  // deviation.
  const double radius = look.blur_radius * scale;
  blur(picture, static_cast<int>(std::lround(radius / picture.reduction / 2)));
  Mixer mixer{look};
  for (Channels& pixel : picture.pixels)
    pixel = mixer.mix(pixel);
  return mixer.luminance_sum() / static_cast<double>(picture.pixels.size());
}

}  // namespace host::quartzcore
