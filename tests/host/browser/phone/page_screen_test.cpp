#include "host/browser/phone/page_screen.h"

#include <cairo.h>
#include <gmock/gmock.h>
#include <turbojpeg.h>

#include "tests/support/host_test.h"

namespace host::test {
namespace {

using browser::Part;
using browser::PartFormat;
using browser::Shape;
using browser::Shown;
using screen::PixelRect;
using testing::IsEmpty;
using testing::SizeIs;

constexpr int kWidth = 200;
constexpr int kHeight = 300;
constexpr PixelRect kWhole{0, 0, kWidth, kHeight};

std::vector<std::uint32_t> pixels_of_png(const std::string& bytes) {
  std::string_view rest = bytes;
  cairo_surface_t* const surface = cairo_image_surface_create_from_png_stream(
      [](void* from, unsigned char* to, unsigned size) {
        auto& left = *static_cast<std::string_view*>(from);
        if (left.size() < size) return CAIRO_STATUS_READ_ERROR;
        std::copy_n(left.data(), size, to);
        left.remove_prefix(size);
        return CAIRO_STATUS_SUCCESS;
      },
      &rest);
  std::vector<std::uint32_t> made;
  const int width = cairo_image_surface_get_width(surface);
  for (int y = 0; y < cairo_image_surface_get_height(surface); ++y) {
    const auto* row = reinterpret_cast<const std::uint32_t*>(
        cairo_image_surface_get_data(surface) + y * cairo_image_surface_get_stride(surface));
    for (int x = 0; x < width; ++x)
      made.push_back(row[x] | 0xFF000000);
  }
  cairo_surface_destroy(surface);
  return made;
}

struct PageScreens : HostTest {
  PageScreens() : pixels(kWidth * kHeight, 0xFF203040) {}

  void connect() {
    screen.connect();
    screen.take(Shape{1, true});
  }
  void show(std::initializer_list<PixelRect> damage) {
    const std::vector<PixelRect> parts(damage);
    screen.show({reinterpret_cast<unsigned char*>(pixels.data()), kWidth, kHeight, kWidth * 4},
                parts);
  }
  void acknowledge() {
    for (int i = 0; i < 100 && shown != sent.back().picture; ++i)
      screen.take(Shown{shown = sent.back().picture});
  }

  std::vector<std::uint32_t> pixels;
  std::vector<Part> sent;
  std::uint32_t shown = 0;
  browser::PageScreen screen{loop, 2, [this](const Part& part) { sent.push_back(part); }};
};

TEST_F(PageScreens, SendNothingWithoutAPage) {
  EXPECT_FALSE(screen.is_watched());
  show({kWhole});
  EXPECT_THAT(sent, IsEmpty());
  screen.connect();
  EXPECT_FALSE(screen.is_watched()) << "it has not told its shape";
  screen.take(Shape{1, true});
  EXPECT_TRUE(screen.is_watched());
  EXPECT_TRUE(screen.needs_everything());
}

TEST_F(PageScreens, SendWhatHasChangedAsJpeg) {
  connect();
  show({{10, 20, 100, 120}});
  ASSERT_THAT(sent, SizeIs(1));
  EXPECT_EQ(sent[0].format, PartFormat::Jpeg);
  EXPECT_TRUE(sent[0].is_last);
  EXPECT_EQ(sent[0].width, kWidth);
  EXPECT_EQ(sent[0].height, kHeight);
  EXPECT_EQ(sent[0].x, 10);
  EXPECT_EQ(sent[0].y, 20);
  const auto reader = tjInitDecompress();
  int width = 0, height = 0, sampling = 0, space = 0;
  EXPECT_EQ(
      tjDecompressHeader3(reader, reinterpret_cast<const unsigned char*>(sent[0].bytes.data()),
                          sent[0].bytes.size(), &width, &height, &sampling, &space),
      0);
  tjDestroy(reader);
  EXPECT_EQ(width, 100);
  EXPECT_EQ(height, 120);
}

TEST_F(PageScreens, WhatRestsIsSentOnceMoreExactlyAndThenNothing) {
  for (std::size_t i = 0; i < pixels.size(); ++i)
    pixels[i] = 0xFF000000 | static_cast<std::uint32_t>(i * 2654435761u) >> 8;
  connect();
  show({kWhole});
  acknowledge();
  sent.clear();
  for (int i = 0; i < 50; ++i) {
    advance(0.1);
    if (!sent.empty()) acknowledge();
  }
  std::vector<std::uint32_t> rebuilt(pixels.size());
  for (const Part& part : sent) {
    ASSERT_EQ(part.format, PartFormat::Png);
    const auto band = pixels_of_png(part.bytes);
    std::copy(band.begin(), band.end(), rebuilt.begin() + part.y * kWidth);
  }
  EXPECT_EQ(rebuilt, pixels);
  sent.clear();
  advance(60);
  EXPECT_THAT(sent, IsEmpty()) << "a phone at rest sends nothing";
  EXPECT_EQ(loop.next_due(), std::numeric_limits<double>::infinity());
}

TEST_F(PageScreens, WhatMovesIsNotSentExactly) {
  connect();
  for (int frame = 0; frame < 60; ++frame) {
    show({kWhole});
    acknowledge();
    advance(1.0 / 60);
  }
  for (const Part& part : sent)
    EXPECT_EQ(part.format, PartFormat::Jpeg);
}

TEST_F(PageScreens, AFewPixelsAreExactAtOnce) {
  connect();
  show({{0, 0, 64, 64}});
  ASSERT_THAT(sent, SizeIs(1));
  EXPECT_EQ(sent[0].format, PartFormat::Png);
  acknowledge();
  advance(2);
  EXPECT_THAT(sent, SizeIs(1));
}

TEST_F(PageScreens, ASlowPageGetsTwoPicturesAndThenWhatHasChangedMeanwhile) {
  connect();
  for (int i = 0; i < 10; ++i)
    show({{i * 10, 0, 11, 200}});
  EXPECT_THAT(sent, SizeIs(2));
  screen.take(Shown{1});
  ASSERT_THAT(sent, SizeIs(3));
  EXPECT_EQ(sent[2].x, 20);
  EXPECT_EQ(sent[2].picture, 3u);
  show({kWhole});
  EXPECT_THAT(sent, SizeIs(3));
}

TEST_F(PageScreens, AWordAboutAPictureThatWasNeverSentIsIgnored) {
  connect();
  show({kWhole});
  show({kWhole});
  for (const std::uint32_t number : {3u, 1000u, 0xFFFFFFFFu})
    screen.take(Shown{number});
  show({kWhole});
  EXPECT_THAT(sent, SizeIs(2));
}

TEST_F(PageScreens, ManyPartsOfAPictureBecomeOne) {
  connect();
  show({{0, 0, 2, 2}, {50, 50, 2, 2}, {100, 100, 2, 2}, {150, 150, 2, 2}, {0, 250, 2, 2}});
  ASSERT_THAT(sent, SizeIs(1));
  EXPECT_EQ(sent[0].y, 0);
  screen.take(Shown{1});
  sent.clear();
  show({{0, 0, 2, 2}, {50, 50, 2, 2}});
  ASSERT_THAT(sent, SizeIs(2));
  EXPECT_FALSE(sent[0].is_last);
  EXPECT_TRUE(sent[1].is_last);
}

TEST_F(PageScreens, APageOutOfSightIsSentNothingAndThenEverything) {
  connect();
  show({kWhole});
  screen.take(Shape{1, false});
  EXPECT_FALSE(screen.is_watched());
  EXPECT_FALSE(screen.needs_everything());
  screen.take(Shape{1, true});
  EXPECT_TRUE(screen.is_watched());
  EXPECT_TRUE(screen.needs_everything());
}

TEST_F(PageScreens, HaveThePixelsOfThePageUpToTheDevices) {
  EXPECT_EQ(screen.pixels_per_point(), std::nullopt);
  screen.take(Shape{1.5, true});
  EXPECT_EQ(screen.pixels_per_point(), 1.5);
  screen.take(Shape{7, true});
  EXPECT_EQ(screen.pixels_per_point(), 2);
  screen.take(Shape{-1, true});
  EXPECT_GT(screen.pixels_per_point(), 0);
}

}  // namespace
}  // namespace host::test
