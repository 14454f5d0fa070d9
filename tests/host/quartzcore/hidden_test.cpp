#include <cstdlib>
#include <random>
#include <vector>

#include "host/quartzcore/kinds/backdrop_layer.h"
#include "tests/host/quartzcore/compositor_fixture.h"

// Layers that hide others.

namespace host::test {
namespace {

using quartzcore::Compositor;

constexpr int kSide = 128;

class HiddenTest : public CompositorTest {
 public:
  HiddenTest() { root.setFrame({0, 0, kSide, kSide}); }

  void render(Compositor& on) {
    const CALayer roots[] = {root};
    on.render(roots, loop.now());
  }
  std::uint64_t drawn_by_next() {
    const std::uint64_t before = screen.drawn_pixels();
    render(screen);
    return screen.drawn_pixels() - before;
  }
  static std::vector<std::uint32_t> pixels_of(const Compositor& of) {
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < kSide; ++y) {
      for (int x = 0; x < kSide; ++x)
        pixels.push_back(pixel_of(of, x, y));
    }
    return pixels;
  }

  Compositor screen{kSide, kSide, 1};
};

TEST_F(HiddenTest, NothingIsPaintedBelowAnOpaqueLayer) {
  const CALayer cover = add({10, 20, 100, 100}, color(1, 0, 0));
  EXPECT_EQ(drawn_by_next(), std::uint64_t{kSide * kSide});
  cover.setPosition({60, 71});
  EXPECT_EQ(drawn_by_next(), 100u * 101u);
  EXPECT_EQ(pixel_of(screen, 60, 20), kBlue);
  EXPECT_EQ(pixel_of(screen, 60, 21), kRed);
  EXPECT_EQ(pixel_of(screen, 109, 120), kRed);
  EXPECT_EQ(pixel_of(screen, 110, 120), kBlue);
}

// Colours and pictures of their own size end at whole pixels, wherever the layer is.
TEST_F(HiddenTest, ALayerBetweenPixelsHidesTheNearestOnes) {
  for (const bool is_picture : {false, true}) {
    const CALayer cover = add({10.3, 20.4, 100, 100}, is_picture ? nullptr : color(1, 0, 0));
    if (is_picture) cover.setContents(quartzcore::object_of(image_of_color(100, 100, kRed)));
    drawn_by_next();
    cover.setPosition({60.3, 71.4});
    EXPECT_EQ(drawn_by_next(), 100u * 101u) << is_picture;
    EXPECT_EQ(pixel_of(screen, 60, 20), kBlue);
    EXPECT_EQ(pixel_of(screen, 60, 21), kRed);
    EXPECT_EQ(pixel_of(screen, 109, 120), kRed);
    EXPECT_EQ(pixel_of(screen, 110, 121), kBlue);
    cover.removeFromSuperlayer();
    render(screen);
  }
}

TEST_F(HiddenTest, APictureThinnerThanHalfAPixelIsPaintedFaintly) {
  const CALayer line = add({10, 20.1, 100, 0.3}, nullptr);
  line.setContents(quartzcore::object_of(image_of_color(100, 1, kRed)));
  render(screen);
  EXPECT_NE(pixel_of(screen, 60, 20), kBlue);
  EXPECT_NE(pixel_of(screen, 60, 20), kRed);
}

TEST_F(HiddenTest, WhatShowsThroughALayerIsPaintedBelowIt) {
  const CALayer cover = add({10, 20, 100, 100}, color(1, 0, 0));
  cover.setCornerRadius(30);
  EXPECT_EQ(drawn_by_next(), std::uint64_t{kSide * kSide + 100 * 100});
  EXPECT_EQ(pixel_of(screen, 11, 21), kBlue);
  cover.setCornerRadius(0);
  cover.setOpacity(0.5);
  EXPECT_EQ(drawn_by_next(), 2u * 100u * 100u);
}

// The first frame of a fade need not draw what the second one shows.
TEST_F(HiddenTest, ALayerTooFaintToChangeAPixelIsNotDrawn) {
  const CALayer fading = add({10, 20, 100, 100}, color(1, 0, 0));
  const CALayer inside = layer_at({0, 0, 50, 50});
  inside.setBackgroundColor(color(0, 1, 0));
  fading.addSublayer(inside);
  fading.setOpacity(0.0019F);
  render(screen);
  EXPECT_EQ(screen.group_count(), 0u);
  EXPECT_EQ(pixel_of(screen, 60, 60), kBlue);
  fading.setOpacity(0.01F);
  render(screen);
  EXPECT_EQ(screen.group_count(), 1u);
  EXPECT_NE(pixel_of(screen, 60, 60), kBlue);
}

// As the rows of a list lie over the list, in any order.
class RowsTest : public HiddenTest {
 public:
  static constexpr int kRows = 16;
  static constexpr int kHeight = kSide / kRows;

  RowsTest() {
    for (int i = 0; i < kRows; ++i)
      rows.push_back(add({0, i * 7 % kRows * kHeight * 1.0, kSide, kHeight}, color(1, 0, 0)));
  }
  CALayer row_at(int place) { return rows[static_cast<std::size_t>(place * 7 % kRows)]; }

  std::vector<CALayer> rows;
};

TEST_F(RowsTest, NothingIsPaintedBelowLayersThatHideItTogether) {
  EXPECT_EQ(drawn_by_next(), std::uint64_t{kSide * kSide});
  for (int y = 0; y < kSide; ++y)
    ASSERT_EQ(pixel_of(screen, 5, y), kRed) << y;
}

TEST_F(RowsTest, AGapBetweenThemShowsWhatIsBelow) {
  row_at(3).setBounds({0, 0, kSide, kHeight - 2});
  EXPECT_EQ(drawn_by_next(), std::uint64_t{kSide * (2 * kSide - 2)});
  EXPECT_EQ(pixel_of(screen, 5, 3 * kHeight), kBlue);
  EXPECT_EQ(pixel_of(screen, 5, 3 * kHeight + 1), kRed);
  row_at(3).setBounds({0, 0, kSide - 2, kHeight});
  EXPECT_EQ(drawn_by_next(), std::uint64_t{kSide * kHeight + (kSide - 2) * kHeight});
  EXPECT_EQ(pixel_of(screen, 0, 3 * kHeight + 1), kBlue);
  EXPECT_EQ(pixel_of(screen, 1, 3 * kHeight + 1), kRed);
}

TEST_F(RowsTest, WhatShowsThroughOneOfThemIsPainted) {
  row_at(9).setOpacity(0.5F);
  render(screen);
  EXPECT_EQ(pixel_of(screen, 5, 8 * kHeight + 1), kRed);
  EXPECT_NE(pixel_of(screen, 5, 9 * kHeight + 1), kRed);
  EXPECT_NE(pixel_of(screen, 5, 9 * kHeight + 1), pixel_of(Compositor{kSide, kSide, 1}, 5, 5));
}

TEST_F(RowsTest, ABlurBetweenThemSeesWhatTheUpperOnesHide) {
  const CABackdropLayer backdrop = CABackdropLayer::layer();
  backdrop.setFrame({0, 0, kSide, kSide});
  objc::state_of<quartzcore::BackdropLayer>(backdrop).show({.blur_radius = 16});
  root.addSublayer(backdrop);
  for (int place = kRows / 2; place < kRows; ++place)
    root.addSublayer(row_at(place));
  render(screen);
  const std::uint32_t nearest = pixel_of(screen, 5, kSide / 2 - 1);
  EXPECT_GT(nearest & 0xff, 0x20u) << "no blue of the root";
  EXPECT_GT(nearest >> 16 & 0xff, 0x20u) << "no red of the rows";
  EXPECT_EQ(pixel_of(screen, 5, kSide / 2), kRed);
}

TEST_F(HiddenTest, ABackdropSeesItsWholePlaceWhateverCoversIt) {
  add({0, 0, kSide / 2, kSide}, color(1, 0, 0));
  const CABackdropLayer backdrop = CABackdropLayer::layer();
  backdrop.setFrame({0, 0, kSide, kSide});
  objc::state_of<quartzcore::BackdropLayer>(backdrop).show({.blur_radius = 32});
  root.addSublayer(backdrop);
  render(screen);
  const auto uncovered = pixels_of(screen);
  add({20, 20, 80, 80}, color(0, 1, 0));
  Compositor other{kSide, kSide, 1};
  render(other);
  EXPECT_EQ(pixel_of(other, 64, 64), 0xff00ff00);
  for (const int at : {5, 19, 100, 127})
    EXPECT_EQ(pixel_of(other, 64, at), uncovered[static_cast<std::size_t>(at * kSide + 64)]) << at;
}

/// The largest difference between two pixels in one channel.
int difference(std::uint32_t a, std::uint32_t b) {
  int most = 0;
  for (int shift = 0; shift < 32; shift += 8)
    most = std::max(
        most, std::abs(static_cast<int>(a >> shift & 255) - static_cast<int>(b >> shift & 255)));
  return most;
}

struct RandomLayers {
  double corner_radius;
  /// cairo rounds the edge of a round corner differently when only a part of it is painted.
  /// How far what the frames have painted may be from what a new screen shows.
  int most_difference;
};

class RandomLayersTest : public HiddenTest, public testing::WithParamInterface<RandomLayers> {};

TEST_P(RandomLayersTest, LeaveNothingBehindWhenTheyMove) {
  std::mt19937 random{3};
  const auto number = [&](int least, int most) {
    return least + static_cast<int>(random() % static_cast<unsigned>(most - least + 1));
  };
  std::vector<CALayer> layers;
  for (int i = 0; i < 12; ++i) {
    const CALayer layer = layer_at({});
    layer.setBackgroundColor(color(number(0, 9) / 9.0, number(0, 9) / 9.0, 0.5));
    if (i % 5 == 3) layer.setCornerRadius(GetParam().corner_radius);
    if (i % 4 == 2) layer.setMasksToBounds(YES);
    (i % 3 == 1 ? layers.back() : root).addSublayer(layer);
    layers.push_back(layer);
  }
  for (int frame = 0; frame < 300; ++frame) {
    const CALayer layer = layers[static_cast<std::size_t>(number(0, 11))];
    layer.setFrame({number(-20, 100) / 2.0, number(-20, 100) * 1.0, number(0, 130) * 1.0,
                    number(0, 130) * 1.0});
    layer.setOpacity(number(0, 3) == 0 ? 0.5F : 1.0F);
    render(screen);
    Compositor new_screen{kSide, kSide, 1};
    render(new_screen);
    for (int y = 0; y < kSide; ++y) {
      for (int x = 0; x < kSide; ++x)
        ASSERT_LE(difference(pixel_of(screen, x, y), pixel_of(new_screen, x, y)),
                  GetParam().most_difference)
            << frame << ": " << x << ", " << y;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Corners, RandomLayersTest,
                         testing::Values(RandomLayers{0, 0}, RandomLayers{10, 2}),
                         [](const auto& one) {
                           return one.param.corner_radius > 0 ? "Round" : "Square";
                         });

}  // namespace
}  // namespace host::test
