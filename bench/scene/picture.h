#pragma once

#include <cstdint>
#include <vector>

namespace bench {

/// Pixels as numbers of alpha, red, green and blue, premultiplied, row by row without gaps.
struct ScenePicture {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;

  std::uint32_t& at(int x, int y) { return pixels[static_cast<std::size_t>(y * width + x)]; }
  std::uint32_t at(int x, int y) const { return pixels[static_cast<std::size_t>(y * width + x)]; }
};

// The scene, in pixels: a background, icons with labels, a title, and artwork that moves up and
// down over all of them.
constexpr int kSceneWidth = 750;
constexpr int kSceneHeight = 1334;
constexpr int kSceneFrames = 300;
/// The background is one row taller than the screen, since it moves by a pixel.
constexpr int kBackgroundHeight = kSceneHeight + 1;
constexpr int kBlurRadius = 20;

constexpr int kIconCount = 24;
constexpr int kIconSide = 120;
constexpr int kLabelSize = 22;
constexpr int kLabelIndent = 30;
constexpr int kLabelDrop = 126;
constexpr int icon_left(int number) {
  return 54 + number % 4 * 174;
}
constexpr int icon_top(int number) {
  return 60 + number / 4 * 176;
}

constexpr int kArtworkSide = 500;
constexpr int kArtworkLeft = 125;
double artwork_top(int frame);

constexpr const char* kTitle = "Midnight Harbour";
constexpr int kTitleSize = 44;
constexpr int kTitleLeft = 200;
constexpr int kTitleTop = 1220;

/// Opaque waves of colour; `seed` shifts them.
ScenePicture photograph(int width, int height, double seed);
/// A square with round corners, transparent outside.
ScenePicture icon_picture(int number);
/// The picture after three box blurs of that radius, for programs that have none.
ScenePicture blurred(ScenePicture picture, int radius);

}  // namespace bench
