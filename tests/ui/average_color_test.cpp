#include <cairo.h>

#include <cmath>
#include <functional>
#include <string>

#include "host/quartzcore/service/exports.h"
#include "host/uikit/drawing/exports.h"
#include "platform/Foundation/NSData.h"
#include "platform/UIKit/UIGraphics.h"
#include "tests/support/host_test.h"
#include "ui/UIImageAverageColorAddition.h"

namespace sonavue::test {
namespace {

struct Components {
  CGFloat red = -1, green = -1, blue = -1, alpha = -1;
};

Components components_of(UIColor colour) {
  Components parts;
  colour.getRed(&parts.red, &parts.green, &parts.blue, &parts.alpha);
  return parts;
}

using Paint = std::function<void(cairo_t*)>;

/// A picture as decoded from a file: its storage has red first.
UIImage decoded(int width, int height, const Paint& paint) {
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height);
  cairo_t* drawing = cairo_create(surface);
  paint(drawing);
  cairo_destroy(drawing);
  std::string bytes;
  cairo_surface_write_to_png_stream(
      surface,
      [](void* sink, const unsigned char* data, unsigned length) {
        static_cast<std::string*>(sink)->append(data, data + length);
        return CAIRO_STATUS_SUCCESS;
      },
      &bytes);
  cairo_surface_destroy(surface);
  return UIImage::imageWithData(NSData::dataWithBytes(bytes.data(), bytes.size()));
}

UIImage plain(int width, int height, double red, double green, double blue) {
  return decoded(width, height, [=](cairo_t* drawing) {
    cairo_set_source_rgb(drawing, red, green, blue);
    cairo_paint(drawing);
  });
}

/// A picture from a drawing context: its storage has blue first.
UIImage drawn(UIColor colour) {
  UIGraphicsBeginImageContext({8, 8});
  colour.setFill();
  CGContextFillRect(UIGraphicsGetCurrentContext(), {0, 0, 8, 8});
  const UIImage image = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  return image;
}

class AverageColor : public host::test::HostTest {
 public:
  AverageColor() {
    host::quartzcore::export_quartzcore();
    host::uikit::export_drawing();
    make_average_color_addition();
  }
};

Components average_of(UIImage image) {
  return components_of(objc::send<UIColor>(image, "averageColor"_sel));
}
Components merged_of(UIImage image) {
  return components_of(objc::send<UIColor>(image, "mergedColor"_sel));
}

TEST_F(AverageColor, OfAPureRedPictureIsRed) {
  const Components mean = average_of(plain(7, 5, 1, 0, 0));
  EXPECT_NEAR(mean.red, 1, 1e-6);
  EXPECT_EQ(mean.green, 0);
  EXPECT_EQ(mean.blue, 0);
  EXPECT_EQ(mean.alpha, 1);
}

TEST_F(AverageColor, IsTheMeanOfEveryPixelOfEveryRow) {
  const Components mean = average_of(decoded(4, 3, [](cairo_t* drawing) {
    cairo_set_source_rgb(drawing, 0, 0, 1);
    cairo_paint(drawing);
    cairo_set_source_rgb(drawing, 1, 0, 0);
    cairo_rectangle(drawing, 3, 0, 1, 3);
    cairo_fill(drawing);
  }));
  EXPECT_NEAR(mean.red, 0.25, 1e-6);
  EXPECT_NEAR(mean.blue, 0.75, 1e-6);
}

// The scale is rounded to single precision before it is multiplied.
TEST_F(AverageColor, ScalesInSinglePrecision) {
  const int width = 7;
  const int height = 3;
  const double sum = 51.0 * width * height;
  const double scale = 1.0f / (3.0f * (7.0f * 255.0f));
  ASSERT_NE(sum * scale, sum / (3.0 * (7.0 * 255.0)));
  EXPECT_EQ(average_of(plain(width, height, 0, 0.2, 0)).green, sum * scale);
}

TEST_F(AverageColor, MergedIsDividedInSinglePrecision) {
  const double fifth = 51 / 255.0f;
  ASSERT_NE(fifth, 51 / 255.0);
  const Components merged = merged_of(plain(40, 40, 0.2, 0.2, 0.2));
  EXPECT_EQ(merged.red, fifth);
  EXPECT_EQ(merged.green, fifth);
  EXPECT_EQ(merged.blue, fifth);
}

TEST_F(AverageColor, TakesTheBytesInTheirStoredOrder) {
  const Components mean = average_of(drawn(UIColor::redColor()));
  EXPECT_EQ(mean.red, 0);
  EXPECT_NEAR(mean.blue, 1, 1e-6);
}

TEST_F(AverageColor, OfAnImageWithoutPixelsIsNaNAndOpaque) {
  const Components mean = average_of(UIImage::alloc().init().autorelease());
  EXPECT_TRUE(std::isnan(mean.red));
  EXPECT_TRUE(std::isnan(mean.green));
  EXPECT_TRUE(std::isnan(mean.blue));
  EXPECT_EQ(mean.alpha, 1);
}

// The sum of 4,112 x 4,112 pixels of 255 slightly exceeds 32 bits.
TEST_F(AverageColor, SumsWrapAroundOnVeryLargeImages) {
  UIGraphicsBeginImageContext({4112, 4112});
  UIColor::whiteColor().setFill();
  CGContextFillRect(UIGraphicsGetCurrentContext(), {0, 0, 4112, 4112});
  const UIImage image = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  EXPECT_LT(average_of(image).red, 0.01);
}

TEST_F(AverageColor, MergedIsTheSameForBothByteOrders) {
  for (const UIImage image : {plain(40, 40, 1, 0, 0), drawn(UIColor::redColor())}) {
    const Components merged = merged_of(image);
    EXPECT_EQ(merged.red, 1);
    EXPECT_EQ(merged.green, 0);
    EXPECT_EQ(merged.blue, 0);
  }
}

// Every pixel contributes, not only those near one point of the picture.
TEST_F(AverageColor, MergedWeighsTheWholePicture) {
  const Components merged = merged_of(decoded(300, 300, [](cairo_t* drawing) {
    cairo_set_source_rgb(drawing, 0, 0, 0);
    cairo_paint(drawing);
    cairo_set_source_rgb(drawing, 1, 1, 1);
    cairo_rectangle(drawing, 0, 0, 300, 75);
    cairo_fill(drawing);
  }));
  EXPECT_NEAR(merged.red, 0.25, 0.05);
  EXPECT_EQ(merged.red, merged.green);
  EXPECT_EQ(merged.red, merged.blue);
}

TEST_F(AverageColor, MergedIsOpaqueWhateverTheImage) {
  EXPECT_EQ(merged_of(drawn(UIColor::clearColor())).alpha, 1);
  EXPECT_EQ(merged_of(drawn(UIColor::colorWithWhite(1, 0.5))).alpha, 1);
}

}  // namespace
}  // namespace sonavue::test
