#include "objc/class_builder.h"
#include "platform/UIKit/NSAttributedStringAdditions.h"
#include "platform/UIKit/UIGraphics.h"
#include "platform/UIKit/UILabel.h"
#include "tests/host/uikit/support/view_test.h"

namespace {

struct Ink {
  long left = 0, right = 0, top = 0, bottom = 0, all = 0;
};

class Label : public host::test::TextViewTest {
 protected:
  UILabel label_in(CGRect frame) { return UILabel::alloc().initWithFrame(frame).autorelease(); }

  /// Measures where a label's drawing leaves ink, by halves.
  static Ink ink_of(UILabel label) {
    const CGSize size = label.bounds().size;
    UIGraphicsBeginImageContext(size);
    label.drawRect(label.bounds());
    const CGContextRef context = UIGraphicsGetCurrentContext();
    const auto* pixels = static_cast<const unsigned char*>(CGBitmapContextGetData(context));
    const std::size_t width = CGBitmapContextGetWidth(context);
    const std::size_t height = CGBitmapContextGetHeight(context);
    Ink ink;
    for (std::size_t y = 0; y < height; ++y) {
      for (std::size_t x = 0; x < width; ++x) {
        const long alpha = pixels[y * CGBitmapContextGetBytesPerRow(context) + x * 4 + 3];
        (x < width / 2 ? ink.left : ink.right) += alpha;
        (y < height / 2 ? ink.top : ink.bottom) += alpha;
        ink.all += alpha;
      }
    }
    UIGraphicsEndImageContext();
    return ink;
  }
};

TEST_F(Label, StartsAsOneLineThatDoesNotTakeTouches) {
  const UILabel label = label_in({0, 0, 100, 20});

  EXPECT_EQ(label.numberOfLines(), 1);
  EXPECT_EQ(label.lineBreakMode(), NSLineBreakByTruncatingTail);
  EXPECT_FALSE(label.isUserInteractionEnabled());
  EXPECT_EQ(label.font().pointSize(), 17);
  EXPECT_FALSE(label.text());
}

TEST_F(Label, OneLineOfTheStandardFontIsTwentyAndAHalfPointsTall) {
  const UILabel label = label_in({});
  label.setText("Settings"_ns);
  EXPECT_EQ(label.sizeThatFits({}).height, 20.5);
}

TEST_F(Label, LinesFollowEachOtherAtTheLineHeightOfTheirFont) {
  const UILabel label = label_in({});
  label.setText("one\ntwo\nthree\nfour\nfive\nsix"_ns);
  label.setNumberOfLines(0);
  const struct {
    NSString font;
    double height;
  } six_lines[] = {{"HelveticaNeue"_ns, 215},             // 6 times 35.79, rounded up
                   {"HelveticaNeue-Bold"_ns, 220},        // 6 times 36.63
                   {"HelveticaNeue-UltraLight"_ns, 210},  // 6 times 34.95
                   {"Helvetica-Light"_ns, 207}};          // 6 times 34.5
  for (const auto& each : six_lines) {
    label.setFont(UIFont::fontWithName(each.font, 30));
    EXPECT_EQ(label.sizeThatFits({400, 0}).height, each.height) << each.font.UTF8String();
  }
}

TEST_F(Label, AnEmptyTextHasNoSize) {
  EXPECT_EQ(label_in({0, 0, 50, 50}).sizeThatFits({}), (CGSize{0, 0}));
}

TEST_F(Label, WrapsWithinTheWidthWhenItMayHaveSeveralLines) {
  const UILabel label = label_in({});
  label.setText("several words that do not fit in so narrow a column"_ns);
  const CGSize one_line = label.sizeThatFits({80, 0});

  label.setNumberOfLines(0);
  const CGSize wrapped = label.sizeThatFits({80, 0});

  EXPECT_GT(one_line.width, 80);
  EXPECT_LE(wrapped.width, 80.5);
  EXPECT_GT(wrapped.height, 2 * one_line.height);
}

TEST_F(Label, AlignsItsTextWithinItsBounds) {
  const UILabel label = label_in({0, 0, 200, 20});
  label.setText("abc"_ns);
  EXPECT_EQ(ink_of(label).right, 0);

  label.setTextAlignment(NSTextAlignmentRight);
  EXPECT_EQ(ink_of(label).left, 0);

  label.setTextAlignment(NSTextAlignmentCenter);
  const Ink centred = ink_of(label);
  EXPECT_GT(centred.left, 0);
  EXPECT_GT(centred.right, 0);
}

TEST_F(Label, CentresItsTextVertically) {
  const UILabel label = label_in({0, 0, 60, 100});
  label.setText("HHH"_ns);

  const CGRect place = label.textRectForBounds(label.bounds(), 1);

  EXPECT_NEAR(place.centre().y, 50, 0.5);
}

TEST_F(Label, IsDrawnEvenWhenItIsLowerThanItsText) {
  const UILabel label = label_in({0, 0, 60, 8});
  label.setText("HHH"_ns);
  EXPECT_GT(ink_of(label).all, 0);
}

TEST_F(Label, AClearColourDrawsNothing) {
  const UILabel label = label_in({0, 0, 60, 20});
  label.setText("HHH"_ns);
  const long before = ink_of(label).all;

  label.setTextColor(UIColor::colorWithWhite(0, 0.45));
  const long translucent = ink_of(label).all;
  label.setTextColor(UIColor::clearColor());

  EXPECT_NEAR(static_cast<double>(translucent) / before, 0.45, 0.03);
  EXPECT_LT(ink_of(label).all, before / 100);
}

TEST_F(Label, ShrinksItsFontToFitOnlyWhenAsked) {
  const UILabel label = label_in({0, 0, 60, 24});
  label.setText("Twelve letters"_ns);
  const double full = label.textRectForBounds(label.bounds(), 1).size.height;

  label.setAdjustsFontSizeToFitWidth(YES);

  EXPECT_LT(label.textRectForBounds(label.bounds(), 1).size.height, full);
}

TEST_F(Label, AttributedTextProvidesThePlainText) {
  const UILabel label = label_in({0, 0, 100, 20});
  const auto attributes =
      NSDictionary::dictionaryWithObject(UIColor::redColor(), NSForegroundColorAttributeName);

  label.setAttributedText(
      NSAttributedString::alloc().initWithString("red"_ns, attributes).autorelease());

  EXPECT_STREQ(label.text().UTF8String(), "red");
}

int redraws = 0;

void count_redraw(objc::Object) {
  ++redraws;
}

TEST_F(Label, RedrawsOnlyWhenSomethingChanged) {
  // Given a label that counts its requests to be redrawn.
  if (!objc_getClass("RedrawCountingLabel")) {
    objc::ClassBuilder("RedrawCountingLabel", "UILabel")
        .method<&count_redraw>("setNeedsDisplay")
        .finish();
  }
  const auto made =
      objc::send<UILabel>(objc::Object(objc_getClass("RedrawCountingLabel")), "alloc"_sel);
  const UILabel label = made.initWithFrame({0, 0, 100, 20}).autorelease();
  label.setText("Let It Be"_ns);
  redraws = 0;

  // When it is set to what it already shows.
  label.setText(NSString::stringWithUTF8String("Let It Be"));
  label.setTextColor(UIColor::colorWithWhite(0, 1));
  label.setFont(UIFont::systemFontOfSize(17));
  label.setTextAlignment(NSTextAlignmentLeft);
  EXPECT_EQ(redraws, 0);

  label.setText("Help!"_ns);
  EXPECT_EQ(redraws, 1);
}

}  // namespace
