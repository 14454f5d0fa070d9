#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "host/quartzcore/compositing/compositor.h"
#include "host/quartzcore/drawing/context.h"
#include "host/quartzcore/drawing/encoded_image.h"
#include "platform/CoreGraphics/CGContext.h"
#include "platform/CoreGraphics/CGImage.h"
#include "platform/CoreGraphics/CGPath.h"
#include "platform/QuartzCore/CAGradientLayer.h"
#include "tests/host/quartzcore/quartz_test.h"

namespace host::test {
namespace {

using DrawingTest = QuartzTest;
using quartzcore::Opacity;

std::uint32_t pixel(CGContextRef context, std::size_t x, std::size_t y) {
  const auto* bytes = static_cast<const unsigned char*>(CGBitmapContextGetData(context));
  std::uint32_t value = 0;
  __builtin_memcpy(&value, bytes + y * CGBitmapContextGetBytesPerRow(context) + x * 4, 4);
  return value;
}

CGImageRef image_of_file(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::string bytes(std::istreambuf_iterator<char>(file), {});
  return quartzcore::promise_image(quartzcore::EncodedImage::read(std::move(bytes), path));
}

TEST_F(DrawingTest, ContextsDrawInPointsFromTheTopLeft) {
  CGContextRef context = quartzcore::make_bitmap_context({4, 4}, 2, Opacity::Translucent);
  EXPECT_EQ(CGBitmapContextGetWidth(context), 8u);
  CGContextSetRGBFillColor(context, 1, 0, 0, 1);
  CGContextFillRect(context, {1, 0, 1, 1});
  EXPECT_EQ(pixel(context, 2, 0), 0xffff0000u);
  EXPECT_EQ(pixel(context, 3, 1), 0xffff0000u);
  EXPECT_EQ(pixel(context, 4, 0), 0u);
  EXPECT_EQ(pixel(context, 2, 2), 0u);
  CGContextRelease(context);
}

TEST_F(DrawingTest, SavedStatesAreRestored) {
  CGContextRef context = quartzcore::make_bitmap_context({4, 4}, 1, Opacity::Translucent);
  CGContextSetRGBFillColor(context, 1, 0, 0, 1);
  CGContextSaveGState(context);
  CGContextSetRGBFillColor(context, 0, 1, 0, 1);
  CGContextTranslateCTM(context, 2, 2);
  CGContextRestoreGState(context);
  CGContextFillRect(context, {0, 0, 1, 1});
  EXPECT_EQ(pixel(context, 0, 0), 0xffff0000u);
  CGContextRelease(context);
}

TEST_F(DrawingTest, DrawingALargeImageIntoOnePixelAveragesIt) {
  CGContextRef big = quartzcore::make_bitmap_context({64, 64}, 1, Opacity::Translucent);
  CGContextSetRGBFillColor(big, 1, 1, 1, 1);
  CGContextFillRect(big, {0, 0, 32, 64});
  CGContextSetRGBFillColor(big, 0, 0, 0, 1);
  CGContextFillRect(big, {32, 0, 32, 64});
  CGImageRef image = CGBitmapContextCreateImage(big);
  CGContextRef one = quartzcore::make_bitmap_context({1, 1}, 1, Opacity::Translucent);
  CGContextSetBlendMode(one, kCGBlendModeCopy);
  CGContextDrawImage(one, {0, 0, 1, 1}, image);
  EXPECT_NEAR(pixel(one, 0, 0) & 0xff, 128, 3);
  CGImageRelease(image);
  CGContextRelease(one);
  CGContextRelease(big);
}

TEST_F(DrawingTest, AnArcRunsFromItsStartToItsEndInTheGivenDirection) {
  CGMutablePathRef path = CGPathCreateMutable();
  CGPathAddArc(path, nullptr, 0, 0, 10, -M_PI / 2, 0, false);
  EXPECT_NEAR(CGPathGetCurrentPoint(path).x, 10, 1e-9);
  const CGRect box = CGPathGetPathBoundingBox(path);
  EXPECT_NEAR(box.min_x(), 0, 0.05);
  EXPECT_NEAR(box.max_x(), 10, 0.05);
  EXPECT_NEAR(box.min_y(), -10, 0.05);
  EXPECT_NEAR(box.max_y(), 0, 0.05);
  CGPathRelease(path);
}

TEST_F(DrawingTest, DecodedFilesAreRedFirstAndInvalidOnesAreNull) {
  const auto path =
      std::filesystem::temp_directory_path() / ("picture-" + std::to_string(getpid()) + ".png");
  CGContextRef context = quartzcore::make_bitmap_context({2, 2}, 1, Opacity::Opaque);
  CGContextSetRGBFillColor(context, 1, 0, 0, 1);
  CGContextFillRect(context, {0, 0, 2, 2});
  cairo_surface_write_to_png(context->surface.get(), path.c_str());
  CGContextRelease(context);
  CGImageRef image = image_of_file(path);
  ASSERT_TRUE(image);
  EXPECT_EQ(CGImageGetWidth(image), 2u);
  CFDataRef data = CGDataProviderCopyData(CGImageGetDataProvider(image));
  EXPECT_EQ(CFDataGetBytePtr(data)[0], 255);
  EXPECT_EQ(CFDataGetBytePtr(data)[2], 0);
  EXPECT_TRUE(quartzcore::image_of(image)->is_opaque());
  CFRelease(data);
  CGImageRelease(image);
  std::filesystem::remove(path);
  EXPECT_FALSE(quartzcore::EncodedImage::read("noise", "noise"));
}

TEST_F(DrawingTest, EveryTranslucentPixelSurvivesAFile) {
  const auto path =
      std::filesystem::temp_directory_path() / ("pixels-" + std::to_string(getpid()) + ".png");
  constexpr unsigned kLevels = 256;
  CGContextRef context =
      quartzcore::make_bitmap_context({kLevels, kLevels}, 1, Opacity::Translucent);
  auto* pixels = static_cast<std::uint32_t*>(CGBitmapContextGetData(context));
  for (unsigned alpha = 0; alpha < kLevels; ++alpha)
    for (unsigned level = 0; level <= alpha; ++level)
      pixels[alpha * kLevels + level] =
          alpha << 24 | level << 16 | (alpha - level) << 8 | level / 2;
  cairo_surface_mark_dirty(context->surface.get());
  cairo_surface_write_to_png(context->surface.get(), path.c_str());
  CGImageRef image = image_of_file(path);
  std::filesystem::remove(path);
  ASSERT_TRUE(image);
  const auto* decoded = reinterpret_cast<const std::uint32_t*>(
      cairo_image_surface_get_data(quartzcore::image_of(image)->surface().get()));
  EXPECT_TRUE(std::equal(decoded, decoded + kLevels * kLevels, pixels));
  CGImageRelease(image);
  CGContextRelease(context);
}

TEST_F(DrawingTest, AGradientMaskSweepsAcrossTheLayerItMasks) {
  const CALayer root = layer_at({0, 0, 8, 2});
  root.setBackgroundColor(color(1, 1, 1));
  const CAGradientLayer mask = CAGradientLayer::layer();
  mask.setFrame({0, 0, 8, 2});
  mask.setStartPoint({0, 0.5});
  mask.setEndPoint({1, 0.5});
  const auto object = [](CGColorRef one) { return objc::Object(reinterpret_cast<objc::Id>(one)); };
  mask.setColors(NSArray::arrayWithObjects(object(color(0, 0, 0, 1)), object(color(0, 0, 0, 0))));
  const auto number = [](double value) { return NSNumber::numberWithDouble(value); };
  mask.setLocations(NSArray::arrayWithObjects(number(0.5), number(0.5)));
  root.setMask(mask);
  const auto animation = CABasicAnimation::animationWithKeyPath("locations"_ns);
  animation.setFromValue(NSArray::arrayWithObjects(number(0), number(0)));
  animation.setToValue(NSArray::arrayWithObjects(number(1), number(1)));
  animation.setDuration(1);
  mask.addAnimation(animation, "sweep"_ns);
  quartzcore::Compositor compositor(8, 2, 1);
  const CALayer roots[] = {root};
  const auto brightness = [&](int x) {
    compositor.render(roots, loop.now());
    return cairo_image_surface_get_data(compositor.surface().get())[x * 4];
  };
  advance(0.25);
  EXPECT_EQ(brightness(1), 255);
  EXPECT_EQ(brightness(3), 0);
  advance(0.5);
  EXPECT_EQ(brightness(3), 255);
  EXPECT_EQ(brightness(7), 0);
}

}  // namespace
}  // namespace host::test
