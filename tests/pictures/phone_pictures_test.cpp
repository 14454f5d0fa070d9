#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <ostream>

#include "picture.h"

namespace sonavue::test {
namespace {

constexpr const char* icon_names[] = {
    "books",    "browser", "calculator", "calendar", "camera",      "clock",    "compass",
    "contacts", "extras",  "files",      "games",    "mail",        "maps",     "messages",
    "music",    "news",    "notes",      "phone",    "photos",      "podcasts", "reminders",
    "settings", "stocks",  "store",      "videos",   "voice-memos", "wallet",   "weather"};

struct IconSize {
  const char* suffix;
  int pixels;
};

constexpr IconSize icon_sizes[] = {
    {"", 60}, {"@2x", 120}, {"@3x", 180}, {"~ipad", 76}, {"@2x~ipad", 152}};

struct StatusGlyph {
  const char* name;
  int width;
  int height;
};

void PrintTo(const StatusGlyph& glyph, std::ostream* out) {
  *out << glyph.name;
}

constexpr StatusGlyph status_glyphs[] = {
    {"signal", 34, 6},   {"signal-dot", 6, 6},     {"signal-dot-empty", 6, 6},
    {"wifi", 14, 10},    {"battery-fill", 25, 10}, {"battery-outline", 25, 10},
    {"charging", 7, 10}, {"play", 8, 9},           {"lock", 8, 11},
    {"alarm", 11, 11},   {"location", 10, 10},     {"airplane", 12, 12}};

std::string identifier(std::string name) {
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

std::optional<Picture> phone_picture(const std::string& name) {
  return rendered_picture("host-pictures/" + name + ".png");
}

bool holds_many_colours(const Picture& picture) {
  std::map<int, int> brightness;
  for (const Pixel& pixel : picture.pixels) {
    ++brightness[pixel.red + pixel.green + pixel.blue];
  }
  return brightness.size() > 100;
}

class Icon : public testing::TestWithParam<const char*> {};

TEST_P(Icon, IsRenderedForPhonesAndTablets) {
  for (const IconSize& size : icon_sizes) {
    const auto picture = phone_picture(std::string("icons/") + GetParam() + size.suffix);
    ASSERT_TRUE(picture) << size.suffix;
    EXPECT_EQ(picture->width, size.pixels);
    EXPECT_EQ(picture->height, size.pixels);
  }
}

TEST_P(Icon, FillsItsOutlineAndNothingElse) {
  const auto picture = phone_picture(std::string("icons/") + GetParam() + "@3x");
  const auto outline = phone_picture("icons/icon-mask@3x");
  ASSERT_TRUE(picture && outline);
  for (std::size_t i = 0; i < picture->pixels.size(); ++i) {
    ASSERT_NEAR(picture->pixels[i].alpha, outline->pixels[i].alpha, 2) << "pixel " << i;
  }
}

TEST_P(Icon, ShowsMoreThanItsBackground) {
  const auto picture = phone_picture(std::string("icons/") + GetParam() + "@2x");
  ASSERT_TRUE(picture);
  const Pixel left_edge = picture->at(3, 60);
  const auto differing =
      std::count_if(picture->pixels.begin(), picture->pixels.end(), [&](const Pixel& pixel) {
        return std::abs(pixel.red - left_edge.red) + std::abs(pixel.green - left_edge.green) +
                   std::abs(pixel.blue - left_edge.blue) >
               60;
      });
  EXPECT_GT(differing, 120 * 120 / 20);
}

INSTANTIATE_TEST_SUITE_P(Pictures, Icon, testing::ValuesIn(icon_names),
                         [](const auto& tested) { return identifier(tested.param); });

TEST(IconOutline, IsRoundAtItsCornersAndStraightAlongItsSides) {
  const auto outline = phone_picture("icons/icon-mask@3x");
  ASSERT_TRUE(outline);
  EXPECT_EQ(outline->at(0, 0).alpha, 0);
  EXPECT_EQ(outline->at(8, 8).alpha, 0);
  EXPECT_EQ(outline->at(15, 15).alpha, 255);
  EXPECT_EQ(outline->at(60, 0).alpha, 255);
  EXPECT_EQ(outline->at(179, 90).alpha, 255);
}

class StatusBarGlyph : public testing::TestWithParam<StatusGlyph> {};

TEST_P(StatusBarGlyph, IsRenderedForEveryScale) {
  const StatusGlyph glyph = GetParam();
  const char* suffixes[] = {"", "@2x", "@3x"};
  for (int scale = 1; scale <= 3; ++scale) {
    const auto picture = phone_picture(std::string("status/") + glyph.name + suffixes[scale - 1]);
    ASSERT_TRUE(picture) << "at scale " << scale;
    EXPECT_EQ(picture->width, glyph.width * scale);
    EXPECT_EQ(picture->height, glyph.height * scale);
  }
}

TEST_P(StatusBarGlyph, IsWhiteWhereVisible) {
  const auto picture = phone_picture(std::string("status/") + GetParam().name + "@3x");
  ASSERT_TRUE(picture);
  EXPECT_GT(picture->visible_share(), 0.1);
  EXPECT_LT(picture->visible_share(), 0.95);
  for (const Pixel& pixel : picture->pixels) {
    ASSERT_TRUE(pixel.alpha == 0 || pixel.red + pixel.green + pixel.blue == 3 * 255);
  }
}

INSTANTIATE_TEST_SUITE_P(Pictures, StatusBarGlyph, testing::ValuesIn(status_glyphs),
                         [](const auto& tested) { return identifier(tested.param.name); });

TEST(Wallpapers, AreOpaqueScenesThatCoverTheLargestPhone) {
  for (const char* name : {"wallpaper-1", "wallpaper-2"}) {
    const auto picture = phone_picture(std::string("wallpapers/") + name);
    ASSERT_TRUE(picture) << name;
    EXPECT_EQ(picture->width, 1242);
    EXPECT_EQ(picture->height, 2208);
    EXPECT_TRUE(picture->is_opaque()) << name;
    EXPECT_TRUE(holds_many_colours(*picture)) << name;
  }
}

TEST(Covers, AreOpaqueSquaresAndNoTwoAreAlike) {
  std::vector<Picture> covers;
  for (int number = 1; number <= 8; ++number) {
    const auto picture = phone_picture("covers/cover-" + std::to_string(number));
    ASSERT_TRUE(picture) << number;
    EXPECT_EQ(picture->width, 600);
    EXPECT_EQ(picture->height, 600);
    EXPECT_TRUE(picture->is_opaque()) << number;
    EXPECT_TRUE(holds_many_colours(*picture)) << number;
    for (const Picture& earlier : covers) {
      EXPECT_NE(picture->pixels, earlier.pixels) << number;
    }
    covers.push_back(*picture);
  }
}

}  // namespace
}  // namespace sonavue::test
