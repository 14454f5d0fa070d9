#include "platform/UIKit/NSStringDrawing.h"
#include "platform/UIKit/UIFont.h"
#include "tests/host/uikit_text/drawing_test.h"

namespace {

class Font : public host::test::DrawingTest {
 protected:
  static CGSize size_of(NSString text, UIFont font) {
    return objc::cast<NSStringDrawing>(text).sizeWithFont(font);
  }
};

TEST_F(Font, AnUnknownNameGivesNoFont) {
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
  // A label of the standard size is 20.5 points tall there: this, rounded up to half a point.
  EXPECT_NEAR(UIFont::systemFontOfSize(17).lineHeight(), 20.28, 0.01);
}

TEST_F(Font, ALineIsAsTallInEveryWeight) {
  const double regular = UIFont::fontWithName("HelveticaNeue"_ns, 30).lineHeight();
  for (const NSString name : {"HelveticaNeue-UltraLight"_ns, "HelveticaNeue-Thin"_ns,
                              "HelveticaNeue-Light"_ns, "HelveticaNeue-Bold"_ns})
    EXPECT_DOUBLE_EQ(UIFont::fontWithName(name, 30).lineHeight(), regular) << name.UTF8String();
}

TEST_F(Font, HeavierWeightsSetWiderAndLighterOnesNarrower) {
  const NSString text = "Here Comes The Sun"_ns;
  const double regular = size_of(text, UIFont::fontWithName("HelveticaNeue"_ns, 15)).width;

  EXPECT_GT(size_of(text, UIFont::fontWithName("HelveticaNeue-Bold"_ns, 15)).width, regular);
  EXPECT_LT(size_of(text, UIFont::fontWithName("HelveticaNeue-Thin"_ns, 15)).width, regular);
  // The thinnest letters stand about a tenth closer than the regular ones.
  const double thinnest =
      size_of(text, UIFont::fontWithName("HelveticaNeue-UltraLight"_ns, 15)).width;
  EXPECT_NEAR(thinnest / regular, 0.9, 0.03);
}

TEST_F(Font, LettersAreAboutAsWideAsThePlatformsOwn) {
  // From the widths published for the platform's typeface: 19.8 em for this sentence.
  const NSString text = "The quick brown fox jumps over the lazy dog"_ns;

  const double width = size_of(text, UIFont::fontWithName("HelveticaNeue"_ns, 100)).width;

  EXPECT_NEAR(width, 1980, 40);
}

TEST_F(Font, DigitsAreAllOfOneWidth) {
  const UIFont font = UIFont::systemFontOfSize(12);
  EXPECT_DOUBLE_EQ(size_of("11:11"_ns, font).width, size_of("20:48"_ns, font).width);
}

TEST_F(Font, EqualFontsAreEqual) {
  const UIFont font = UIFont::systemFontOfSize(17);
  EXPECT_TRUE(font.isEqual(UIFont::fontWithName("HelveticaNeue"_ns, 17)));
  EXPECT_FALSE(font.isEqual(UIFont::systemFontOfSize(18)));
}

}  // namespace
