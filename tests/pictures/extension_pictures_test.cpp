#include <gtest/gtest.h>

#include <cmath>
#include <ostream>

#include "picture.h"

namespace sonavue::test {
namespace {

struct Glyph {
  const char* name;
  int width;
  int height;
};

void PrintTo(const Glyph& glyph, std::ostream* out) {
  *out << glyph.name;
}

constexpr Glyph template_glyphs[] = {
    {"Play", 50, 50},   {"Pausa", 50, 50},         {"indietro", 40, 30}, {"avanti", 40, 30},
    {"search", 15, 15}, {"grab_dragging", 40, 15}, {"grab_done", 40, 15}};

std::optional<Picture> extension_picture(const std::string& name) {
  return rendered_picture("staging/Library/Application Support/Sonavue/" + name + ".png");
}

std::string scale_suffix(int scale) {
  return scale == 1 ? "" : "@" + std::to_string(scale) + "x";
}

class TemplateGlyph : public testing::TestWithParam<Glyph> {};

TEST_P(TemplateGlyph, IsRenderedForEveryScale) {
  const Glyph glyph = GetParam();
  for (int scale = 1; scale <= 3; ++scale) {
    const auto picture = extension_picture(glyph.name + scale_suffix(scale));
    ASSERT_TRUE(picture) << "at scale " << scale;
    EXPECT_EQ(picture->width, glyph.width * scale);
    EXPECT_EQ(picture->height, glyph.height * scale);
  }
}

TEST_P(TemplateGlyph, IsAShapeOnATransparentBackground) {
  const auto picture = extension_picture(GetParam().name);
  ASSERT_TRUE(picture);
  EXPECT_GT(picture->visible_share(), 0.05);
  EXPECT_LT(picture->visible_share(), 0.7);
}

// A tint replaces the colour and keeps the alpha, so colour in a template would be lost silently.
TEST_P(TemplateGlyph, HasNoColour) {
  const auto picture = extension_picture(std::string(GetParam().name) + "@2x");
  ASSERT_TRUE(picture);
  for (const Pixel& pixel : picture->pixels) {
    ASSERT_EQ(pixel.red + pixel.green + pixel.blue, 0);
  }
}

INSTANTIATE_TEST_SUITE_P(Pictures, TemplateGlyph, testing::ValuesIn(template_glyphs),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST(PlayAndPause, KeepClearOfTheRingAroundThem) {
  constexpr double clear_radius = 18;
  for (const char* name : {"Play", "Pausa"}) {
    const auto picture = extension_picture(name);
    ASSERT_TRUE(picture) << name;
    for (int y = 0; y < picture->height; ++y) {
      for (int x = 0; x < picture->width; ++x) {
        const double distance = std::hypot(x + 0.5 - 25, y + 0.5 - 25);
        ASSERT_TRUE(distance < clear_radius || picture->at(x, y).alpha == 0)
            << name << " at " << x << ", " << y;
      }
    }
  }
}

// The rasteriser measures coverage in fifteenths of a pixel from the left, so mirrored edges may
// differ by one such step of alpha; an edge that is a tenth of a pixel off would differ by more.
TEST(PreviousAndNext, AreMirrorImages) {
  constexpr int rounding = 17;
  const auto previous = extension_picture("indietro@3x");
  const auto next = extension_picture("avanti@3x");
  ASSERT_TRUE(previous && next);
  ASSERT_EQ(previous->width, next->width);
  for (int y = 0; y < next->height; ++y) {
    for (int x = 0; x < next->width; ++x) {
      ASSERT_NEAR(next->at(x, y).alpha, previous->at(next->width - 1 - x, y).alpha, rounding)
          << x << ", " << y;
    }
  }
}

TEST(EmptyCover, IsAnOpaqueSquareForEveryScale) {
  for (int scale = 1; scale <= 3; ++scale) {
    const auto picture = extension_picture("empty_cover" + scale_suffix(scale));
    ASSERT_TRUE(picture) << "at scale " << scale;
    EXPECT_EQ(picture->width, 300 * scale);
    EXPECT_EQ(picture->height, 300 * scale);
    EXPECT_TRUE(picture->is_opaque());
  }
}

}  // namespace
}  // namespace sonavue::test
