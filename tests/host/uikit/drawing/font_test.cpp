#include "platform/UIKit/NSStringDrawing.h"
#include "platform/UIKit/UIFont.h"
#include "tests/host/uikit/support/drawing_test.h"

namespace {

class Font : public host::test::DrawingTest {
 protected:
  static CGSize size_of(NSString text, UIFont font) {
    return objc::cast<NSStringDrawing>(text).sizeWithFont(font);
  }
};

TEST_F(Font, AnUnknownNameReturnsNoFont) {
  EXPECT_FALSE(UIFont::fontWithName("NoSuchFace-Bold"_ns, 12));
  EXPECT_FALSE(UIFont::fontWithName(nil, 12));
}

TEST_F(Font, KeepsThePlatformsNameAndSize) {
  const UIFont font = UIFont::fontWithName("HelveticaNeue-Light"_ns, 28);

  EXPECT_STREQ(font.fontName().UTF8String(), "HelveticaNeue-Light");
  EXPECT_STREQ(font.familyName().UTF8String(), "Helvetica Neue");
  EXPECT_EQ(font.pointSize(), 28);
}

TEST_F(Font, ALineIsAsTallAsOnThePlatform) {
  // A label of the standard size is 20.5 points tall on the platform: this value rounded up to half
  // a point.
  EXPECT_NEAR(UIFont::systemFontOfSize(17).lineHeight(), 20.28, 0.01);
}

TEST_F(Font, EveryWeightHasThePlatformsMetrics) {
  const struct {
    NSString name;
    double ascender, descender, line_height;
  } faces[] = {{"HelveticaNeue"_ns, 95.2, -21.3, 119.3},
               {"HelveticaNeue-Bold"_ns, 97.5, -21.7, 122.1},
               {"HelveticaNeue-Medium"_ns, 95.97, -21.43, 120.23},
               {"HelveticaNeue-Light"_ns, 94.43, -21.17, 118.37},
               {"HelveticaNeue-Thin"_ns, 93.67, -21.03, 117.43},
               {"HelveticaNeue-UltraLight"_ns, 92.9, -20.9, 116.5},
               {"Helvetica"_ns, 92, -23, 115},
               {"Helvetica-Light"_ns, 92, -23, 115}};
  for (const auto& face : faces) {
    const UIFont font = UIFont::fontWithName(face.name, 100);
    EXPECT_NEAR(font.ascender(), face.ascender, 0.005) << face.name.UTF8String();
    EXPECT_NEAR(font.descender(), face.descender, 0.005) << face.name.UTF8String();
    EXPECT_NEAR(font.lineHeight(), face.line_height, 0.005) << face.name.UTF8String();
  }
}

TEST_F(Font, HeavierWeightsAreWiderAndLighterOnesNarrower) {
  const NSString text = "Here Comes The Sun"_ns;
  const double regular = size_of(text, UIFont::fontWithName("HelveticaNeue"_ns, 15)).width;

  EXPECT_GT(size_of(text, UIFont::fontWithName("HelveticaNeue-Bold"_ns, 15)).width, regular);
  EXPECT_LT(size_of(text, UIFont::fontWithName("HelveticaNeue-Thin"_ns, 15)).width, regular);
  // The thinnest letters are about an eighth narrower than the regular ones.
  const double thinnest =
      size_of(text, UIFont::fontWithName("HelveticaNeue-UltraLight"_ns, 15)).width;
  EXPECT_NEAR(thinnest / regular, 0.87, 0.03);
}

TEST_F(Font, LettersAreAboutAsWideAsThePlatforms) {
  // Computed from the published widths of the platform's typeface: 19.8 em for this sentence.
  const NSString text = "The quick brown fox jumps over the lazy dog"_ns;

  const double width = size_of(text, UIFont::fontWithName("HelveticaNeue"_ns, 100)).width;

  EXPECT_NEAR(width, 1980, 40);
}

TEST_F(Font, DigitsAllHaveOneWidth) {
  const UIFont font = UIFont::systemFontOfSize(12);
  EXPECT_DOUBLE_EQ(size_of("11:11"_ns, font).width, size_of("20:48"_ns, font).width);
}

TEST_F(Font, EqualFontsAreEqual) {
  const UIFont font = UIFont::systemFontOfSize(17);
  EXPECT_TRUE(font.isEqual(UIFont::fontWithName("HelveticaNeue"_ns, 17)));
  EXPECT_FALSE(font.isEqual(UIFont::systemFontOfSize(18)));
}

}  // namespace
