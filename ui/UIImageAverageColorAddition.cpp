#include "ui/UIImageAverageColorAddition.h"

#include <cstdint>

#include "objc/class_builder.h"
#include "platform/CoreGraphics/CGContext.h"
#include "platform/CoreGraphics/CGImage.h"
#include "platform/UIKit/UIGraphics.h"

namespace sonavue {
namespace {

constexpr float kFull = 255.0f;

// 32-bit sums, which overflow on images of more than sixteen million bright pixels.
struct Sums {
  std::uint32_t red = 0;
  std::uint32_t green = 0;
  std::uint32_t blue = 0;
};

Sums sum_pixels(CGImageRef image, const unsigned char* bytes) {
  const std::size_t width = CGImageGetWidth(image);
  const std::size_t height = CGImageGetHeight(image);
  const std::size_t stride = CGImageGetBytesPerRow(image);
  const std::size_t step = CGImageGetBitsPerPixel(image) / 8;
  Sums sums;
  for (std::size_t y = 0; y < height; ++y) {
    const unsigned char* pixel = bytes + y * stride;
    for (std::size_t x = 0; x < width; ++x, pixel += step) {
      sums.red += pixel[0];
      sums.green += pixel[1];
      sums.blue += pixel[2];
    }
  }
  return sums;
}

UIColor average_color(UIImage self) {
  return averageColor(self);
}
UIColor merged_color(UIImage self) {
  return mergedColor(self);
}

CGFloat component(unsigned char byte) {
  return static_cast<float>(byte) / kFull;
}

}  // namespace

UIColor averageColor(UIImage image) {
  const CGImageRef bitmap = image.CGImage();
  const CFDataRef copied = CGDataProviderCopyData(CGImageGetDataProvider(bitmap));
  const Sums sums = sum_pixels(bitmap, CFDataGetBytePtr(copied));
  if (copied) CFRelease(copied);
  const auto width = static_cast<float>(CGImageGetWidth(bitmap));
  const auto height = static_cast<float>(CGImageGetHeight(bitmap));
  const float scale = 1.0f / (height * (width * kFull));
  return UIColor::colorWithRed(sums.red * static_cast<double>(scale),
                               sums.green * static_cast<double>(scale),
                               sums.blue * static_cast<double>(scale), 1.0);
}

UIColor mergedColor(UIImage image) {
  UIGraphicsBeginImageContext({1, 1});
  const CGContextRef context = UIGraphicsGetCurrentContext();
  CGContextSetInterpolationQuality(context, kCGInterpolationMedium);
  image.drawInRect({0, 0, 1, 1}, kCGBlendModeCopy, 1.0);
  // A drawing context stores blue first.
  const auto* pixel = static_cast<const unsigned char*>(CGBitmapContextGetData(context));
  const UIColor colour =
      UIColor::colorWithRed(component(pixel[2]), component(pixel[1]), component(pixel[0]), 1.0);
  UIGraphicsEndImageContext();
  return colour;
}

void make_average_color_addition() {
  objc::add_method<&average_color>(UIImage::cls(), "averageColor");
  objc::add_method<&merged_color>(UIImage::cls(), "mergedColor");
}

}  // namespace sonavue
