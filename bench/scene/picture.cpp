#include "bench/scene/picture.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace bench {
namespace {

constexpr int kBlurPasses = 3;
constexpr int kLevels = 255;
constexpr double kMiddle = 417;
constexpr double kReach = 380;
constexpr double kPace = 0.05;
// The radius of an icon's corners, as a share of its side.
constexpr double kCornerShare = 0.22;

std::uint32_t premultiplied(double red, double green, double blue, double alpha) {
  const auto level = [](double share) { return static_cast<std::uint32_t>(share * kLevels); };
  return level(alpha) << 24 | level(red * alpha) << 16 | level(green * alpha) << 8 |
         level(blue * alpha);
}

/// How much of the pixel at this place a square with round corners covers.
double cover(double x, double y, double side) {
  const double radius = side * kCornerShare;
  const auto beyond = [&](double along) {
    return std::max(std::abs(along - side / 2) - side / 2 + radius, 0.0);
  };
  return std::clamp(radius - std::hypot(beyond(x), beyond(y)) + 0.5, 0.0, 1.0);
}

/// One box blur along lines of pixels that are `step` apart.
class BoxBlur {
 public:
  BoxBlur(const std::uint32_t* from, std::uint32_t* to, int count, int step, int radius)
      : from_(from), to_(to), count_(count), step_(step), radius_(radius) {}

  void run() {
    for (int i = -radius_; i <= radius_; ++i)
      add(i, 1);
    for (int i = 0; i < count_; ++i) {
      to_[i * step_] = mean();
      add(i + radius_ + 1, 1);
      add(i - radius_, -1);
    }
  }

 private:
  void add(int i, int sign) {
    const std::uint32_t pixel = from_[std::clamp(i, 0, count_ - 1) * step_];
    for (std::size_t channel = 0; channel < sums_.size(); ++channel)
      sums_[channel] += sign * static_cast<int>(pixel >> (8 * channel) & kLevels);
  }
  std::uint32_t mean() const {
    std::uint32_t pixel = 0;
    for (std::size_t channel = 0; channel < sums_.size(); ++channel)
      pixel |= static_cast<std::uint32_t>(sums_[channel] / (2 * radius_ + 1)) << (8 * channel);
    return pixel;
  }

  const std::uint32_t* from_;
  std::uint32_t* to_;
  int count_;
  int step_;
  int radius_;
  std::array<int, 4> sums_{};
};

}  // namespace

double artwork_top(int frame) {
  return kMiddle + kReach * std::sin(frame * kPace);
}

ScenePicture photograph(int width, int height, double seed) {
  ScenePicture picture{width, height,
                       std::vector<std::uint32_t>(static_cast<std::size_t>(width * height))};
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const double red = 0.5 + 0.48 * std::sin(0.011 * x + 0.003 * y + seed);
      const double green = 0.5 + 0.44 * std::sin(0.004 * x - 0.009 * y + seed);
      const double blue = 0.5 + 0.4 * std::sin(0.006 * (x + y) + std::sin(0.05 * x));
      picture.at(x, y) = premultiplied(red, green, blue, 1);
    }
  }
  return picture;
}

ScenePicture icon_picture(int number) {
  constexpr int side = kIconSide;
  ScenePicture picture{side, side, std::vector<std::uint32_t>(std::size_t{side} * side)};
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      picture.at(x, y) =
          premultiplied(0.5 + 0.5 * std::sin(number), 0.5 + 0.5 * std::sin(2 * number + 0.01 * y),
                        0.5 + 0.5 * std::cos(number + 0.01 * x), cover(x + 0.5, y + 0.5, side));
    }
  }
  return picture;
}

ScenePicture blurred(ScenePicture picture, int radius) {
  ScenePicture other = picture;
  const int width = picture.width;
  for (int pass = 0; pass < kBlurPasses; ++pass) {
    for (int y = 0; y < picture.height; ++y)
      BoxBlur(&picture.at(0, y), &other.at(0, y), width, 1, radius).run();
    for (int x = 0; x < width; ++x)
      BoxBlur(&other.at(x, 0), &picture.at(x, 0), picture.height, width, radius).run();
  }
  return picture;
}

}  // namespace bench
