#include "host/quartzcore/pixels/small_picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <random>

#include "host/quartzcore/compositing/backdrop_filter.h"
#include "host/quartzcore/pixels/pixel_blend.h"
#include "tests/host/quartzcore/test_surfaces.h"

namespace host::quartzcore {
namespace {

using test::filled;
using test::opaque_noise;
using test::row_of;

class SmallPictureTest : public testing::TestWithParam<int> {};

TEST_P(SmallPictureTest, AUniformPictureStaysTheSameInAnySize) {
  const Surface surface = filled(21, 13, 0xff1e90ff);
  const SmallPicture small = reduce(surface, {0, 0, 21, 13}, GetParam());
  const Surface result = make_surface(21, 13);
  enlarge(small, result);
  for (int y = 0; y < 13; ++y) {
    for (int x = 0; x < 21; ++x)
      ASSERT_EQ(row_of(result, y)[x], 0xff1e90ff) << x << ", " << y;
  }
}

TEST_P(SmallPictureTest, EverySquareIsTheMeanOfItsPixels) {
  const int side = GetParam();
  const Surface surface = filled(2 * side + 3, side + 3, 0xff000000);
  for (int x = side; x < 2 * side; ++x)
    row_of(surface, 3)[x + 3] = 0xff0000ff;
  const SmallPicture small = reduce(surface, {3, 3, 2 * side, side}, side);
  ASSERT_EQ(small.width, 2);
  ASSERT_EQ(small.height, 1);
  EXPECT_FLOAT_EQ(small.row(0)[0][0], 0);
  EXPECT_FLOAT_EQ(small.row(0)[1][0], 255.0F / static_cast<float>(side));
}

TEST_P(SmallPictureTest, ARampStaysARampInBothDirections) {
  const int side = GetParam();
  const int length = 8 * side;
  for (const bool is_upright : {false, true}) {
    SmallPicture small{side, 8, 8, SmallPicture::Pixels(64)};
    for (int y = 0; y < 8; ++y) {
      for (int x = 0; x < 8; ++x)
        small.row(y)[x] = Channels{} + static_cast<float>(32 * (is_upright ? y : x));
    }
    const Surface result = make_surface(length, length);
    enlarge(small, result);
    for (int i = 0; i < length; ++i) {
      const double middle = std::clamp((i + 0.5) / side - 0.5, 0.0, 7.0);
      const std::uint32_t pixel = is_upright ? row_of(result, i)[5] : row_of(result, 5)[i];
      ASSERT_NEAR(pixel & 0xff, 32 * middle, 1) << i;
    }
  }
}

TEST_P(SmallPictureTest, PaintedWithAnOpacityItChangesOnlyTheDamage) {
  const SmallPicture small = reduce(filled(16, 16, 0xffffffff), {0, 0, 16, 16}, GetParam());
  const Surface screen = filled(24, 24, 0xff000000);
  paint_enlarged(small, screen, 4, 4, {6, 8, 5, 3}, 0.5);
  for (int y = 0; y < 24; ++y) {
    for (int x = 0; x < 24; ++x) {
      const bool inside = x >= 6 && x < 11 && y >= 8 && y < 11;
      ASSERT_EQ(row_of(screen, y)[x], inside ? 0xff808080 : 0xff000000) << x << ", " << y;
    }
  }
}

TEST_P(SmallPictureTest, EveryPartHasThePixelsOfTheWhole) {
  constexpr int kWidth = 53;
  constexpr int kHeight = 47;
  std::mt19937 random{5};
  const Surface pixels = opaque_noise(kWidth, kHeight, random);
  const SmallPicture small = reduce(pixels, {0, 0, kWidth, kHeight}, GetParam());
  const Surface whole = make_surface(kWidth, kHeight);
  enlarge(small, whole);
  const auto below = [&](int end) {
    return static_cast<int>(random() % static_cast<unsigned>(end));
  };
  for (int round = 0; round < 200; ++round) {
    const int left = below(kWidth);
    const int top = below(kHeight);
    const PixelRect part{left, top, 1 + below(kWidth - left), 1 + below(kHeight - top)};
    const Surface painted = filled(kWidth, kHeight, 0);
    paint_enlarged(small, painted, 0, 0, part, 1);
    for (int y = 0; y < kHeight; ++y) {
      for (int x = 0; x < kWidth; ++x) {
        const bool inside = part.contains({x, y, 1, 1});
        ASSERT_EQ(row_of(painted, y)[x], inside ? row_of(whole, y)[x] : 0) << x << ", " << y;
      }
    }
  }
}

TEST(PixelBlend, AnOpaqueSurfaceIsBlendedInsideTheDamageAndTheSurfaceBelow) {
  const Surface screen = filled(40, 20, 0xff000000);
  const Surface picture = filled(40, 20, 0xffffffff);
  blend_opaque(picture, screen, -7, 5, {3, 0, 50, 9}, 0.25);
  blend_opaque(picture, screen, 100, 100, {0, 0, 40, 20}, 1);
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < 40; ++x) {
      const bool inside = x >= 3 && x < 33 && y >= 5 && y < 9;
      ASSERT_EQ(row_of(screen, y)[x], inside ? 0xff404040 : 0xff000000) << x << ", " << y;
    }
  }
}

// Any colours, also those that are brighter than their alpha allows.
TEST(PixelBlend, ATranslucentSurfaceIsPaintedAsCairoPaintsIt) {
  constexpr int kWidth = 83;
  constexpr int kHeight = 256;
  std::mt19937 random{11};
  const Surface picture = filled(kWidth, kHeight, 0);
  const Surface expected = filled(kWidth, kHeight + 7, 0);
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      const std::uint32_t alpha = x < 20 ? 255 : x < 40 ? 0 : static_cast<std::uint32_t>(y);
      row_of(picture, y)[x] = alpha == 0 ? 0 : alpha << 24 | (random() & 0xffffff);
      row_of(expected, y)[x] = static_cast<std::uint32_t>(random());
    }
  }
  const Surface screen = filled(kWidth, kHeight + 7, 0);
  for (int y = 0; y < kHeight + 7; ++y)
    std::copy_n(row_of(expected, y), kWidth, row_of(screen, y));
  const Drawing drawing = draw_on(expected);
  cairo_rectangle(drawing.get(), 3, 5, kWidth - 4, kHeight);
  cairo_clip(drawing.get());
  cairo_set_source_surface(drawing.get(), picture.get(), 2, 4);
  cairo_paint(drawing.get());
  cairo_surface_flush(expected.get());
  blend_over(picture, screen, 2, 4, {3, 5, kWidth - 4, kHeight});
  for (int y = 0; y < kHeight + 7; ++y) {
    for (int x = 0; x < kWidth; ++x)
      ASSERT_EQ(row_of(screen, y)[x], row_of(expected, y)[x]) << x << ", " << y;
  }
}

INSTANTIATE_TEST_SUITE_P(Reductions, SmallPictureTest, testing::Values(1, 2, 4, 8));

TEST(BackdropFilter, ABlurSpreadsOneBrightPixelEvenlyAndLosesNothingOfIt) {
  SmallPicture picture{8, 41, 41, SmallPicture::Pixels(41 * 41)};
  picture.row(20)[20] = Channels{} + 255.0F;
  BackdropLook look;
  look.blur_radius = 48;
  filter_backdrop(picture, look, 1);
  double sum = 0;
  for (const Channels& pixel : picture.pixels)
    sum += static_cast<double>(pixel[0]);
  EXPECT_NEAR(sum, 255, 0.1);
  EXPECT_NEAR(picture.row(20)[16][1], picture.row(16)[20][1], 1e-3);
  EXPECT_NEAR(picture.row(20)[16][1], picture.row(20)[24][1], 1e-3);
  EXPECT_GT(picture.row(20)[20][1], picture.row(20)[24][1]);
}

TEST(BackdropFilter, TintsAreLaidOverTheSaturatedColourOneAfterTheOther) {
  SmallPicture picture{1, 1, 1, {Channels{0, 0, 255, 255}}};
  BackdropLook look;
  look.blur_radius = 0;
  look.gray_level = 1;
  look.gray_alpha = 0.5;
  look.tint = {0, 0, 0, 0.5};
  EXPECT_NEAR(filter_backdrop(picture, look, 1), 0.2126, 1e-4);
  // Red: towards white, then towards black. Blue: the same from nothing.
  EXPECT_NEAR(picture.pixels[0][2], 127.5, 0.1);
  EXPECT_NEAR(picture.pixels[0][0], 63.75, 0.1);
}

}  // namespace
}  // namespace host::quartzcore
