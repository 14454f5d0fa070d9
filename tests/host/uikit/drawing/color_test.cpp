#include <gmock/gmock.h>

#include <cstring>

#include "host/quartzcore/drawing/image.h"
#include "platform/CoreGraphics/CGColor.h"
#include "platform/Foundation/NSString.h"
#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIGraphics.h"
#include "platform/UIKit/UIImage.h"
#include "tests/host/uikit/support/drawing_test.h"

namespace {

struct Components {
  double red = -1, green = -1, blue = -1, alpha = -1;
  friend bool operator==(const Components&, const Components&) = default;
};

Components components(UIColor color) {
  Components found;
  EXPECT_TRUE(color.getRed(&found.red, &found.green, &found.blue, &found.alpha));
  return found;
}

class Color : public host::test::DrawingTest {};

TEST_F(Color, NamedColoursAreThePlatformsOwn) {
  EXPECT_EQ(components(UIColor::orangeColor()), (Components{1, 0.5, 0, 1}));
  EXPECT_EQ(components(UIColor::purpleColor()), (Components{0.5, 0, 0.5, 1}));
  EXPECT_EQ(components(UIColor::brownColor()), (Components{0.6, 0.4, 0.2, 1}));
  EXPECT_EQ(components(UIColor::cyanColor()), (Components{0, 1, 1, 1}));
  EXPECT_EQ(components(UIColor::clearColor()), (Components{0, 0, 0, 0}));
}

TEST_F(Color, ANamedColourIsAlwaysTheSameObject) {
  EXPECT_EQ(UIColor::blackColor(), UIColor::blackColor());
}

TEST_F(Color, ComponentsAreClamped) {
  EXPECT_EQ(components(UIColor::colorWithRed(-1, 2, 0.25, 7)), (Components{0, 1, 0.25, 1}));
}

TEST_F(Color, OnlyGreyHasAWhiteComponent) {
  double white = -1, alpha = -1;

  EXPECT_FALSE(UIColor::redColor().getWhite(&white, &alpha));
  EXPECT_EQ(white, -1);

  EXPECT_TRUE(UIColor::colorWithWhite(0.25, 0.45).getWhite(&white, nullptr));
  EXPECT_EQ(white, 0.25);
  EXPECT_EQ(alpha, -1);
}

TEST_F(Color, HueConvertsBothWays) {
  const UIColor made = UIColor::colorWithHue(0.6, 0.5, 0.8, 1);
  double hue = 0, saturation = 0, brightness = 0;

  made.getHue(&hue, &saturation, &brightness, nullptr);

  EXPECT_NEAR(hue, 0.6, 1e-9);
  EXPECT_NEAR(saturation, 0.5, 1e-9);
  EXPECT_NEAR(brightness, 0.8, 1e-9);
}

TEST_F(Color, EqualColoursAreEqualHoweverTheyWereMade) {
  const UIColor grey = UIColor::colorWithWhite(0, 0.45);
  const UIColor black = UIColor::blackColor().colorWithAlphaComponent(0.45);

  EXPECT_TRUE(grey.isEqual(black));
  EXPECT_FALSE(grey.isEqual(UIColor::blackColor()));
  EXPECT_FALSE(grey.isEqual("black"_ns));
}

TEST_F(Color, CrossesCoreGraphicsUnchanged) {
  const UIColor made = UIColor::colorWithRed(0.1, 0.2, 0.3, 0.4);

  const UIColor back = UIColor::colorWithCGColor(made.CGColor());

  EXPECT_EQ(components(back), (Components{0.1, 0.2, 0.3, 0.4}));
  EXPECT_DOUBLE_EQ(CGColorGetAlpha(made.CGColor()), 0.4);
}

/// Two points wide at two pixels per point: the left half red, the right half blue.
UIImage striped_picture() {
  UIGraphicsBeginImageContextWithOptions({2, 1}, YES, 2);
  UIColor::redColor().setFill();
  UIRectFill({0, 0, 1, 1});
  UIColor::blueColor().setFill();
  UIRectFill({1, 0, 1, 1});
  const UIImage picture = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  return picture;
}

TEST_F(Color, APatternTilesItsImage) {
  const UIColor pattern = UIColor::colorWithPatternImage(striped_picture());
  UIGraphicsBeginImageContextWithOptions({5, 1}, YES, 1);
  pattern.setFill();
  UIRectFill({0, 0, 5, 1});
  const UIImage drawn = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();

  const auto surface = host::quartzcore::image_of(drawn.CGImage())->surface();
  std::uint32_t pixels[5];
  std::memcpy(pixels, cairo_image_surface_get_data(surface.get()), sizeof pixels);
  EXPECT_THAT(pixels,
              ::testing::ElementsAre(0xffff0000, 0xff0000ff, 0xffff0000, 0xff0000ff, 0xffff0000));
}

TEST_F(Color, APatternIsItsMeanWhereASingleColourIsNeeded) {
  const Components mean = components(UIColor::colorWithPatternImage(striped_picture()));
  EXPECT_NEAR(mean.red, 0.5, 0.01);
  EXPECT_NEAR(mean.blue, 0.5, 0.01);
  EXPECT_EQ(mean.alpha, 1);
}

TEST_F(Color, PatternsOfOneImageAreEqualAndCrossCoreGraphics) {
  const UIImage picture = striped_picture();
  const UIColor pattern = UIColor::colorWithPatternImage(picture);
  EXPECT_TRUE(pattern.isEqual(UIColor::colorWithPatternImage(picture)));
  EXPECT_FALSE(pattern.isEqual(UIColor::colorWithPatternImage(striped_picture())));
  EXPECT_TRUE(pattern.isEqual(UIColor::colorWithCGColor(pattern.CGColor())));
}

TEST_F(Color, WithoutAnImageThereIsNoPattern) {
  EXPECT_FALSE(UIColor::colorWithPatternImage(nil));
}

}  // namespace
