#include "host/uikit/text_layout/text_layout.h"

#include <array>
#include <string>

#include "host/basics/utf16.h"
#include "host/uikit/drawing/graphics.h"
#include "host/uikit/text_layout/characters.h"
#include "platform/Foundation/NSValue.h"
#include "platform/UIKit/NSAttributedStringAdditions.h"
#include "platform/UIKit/NSStringDrawing.h"
#include "tests/host/uikit/support/drawing_test.h"

namespace {

using host::uikit::style_of;
using host::uikit::styled_text;
using host::uikit::TextFrame;
using host::uikit::TextLayout;
using host::uikit::TextStyle;

NSString string_of(const std::string& text) {
  return NSString::stringWithUTF8String(text.c_str());
}

class Text : public host::test::DrawingTest {
 protected:
  const TextStyle style = style_of(UIFont::systemFontOfSize(10), nil);
  const double line = UIFont::systemFontOfSize(10).lineHeight();
};

TEST_F(Text, EmptyTextIsOneLineTallAndNotWide) {
  const TextLayout layout(styled_text(""_ns, style), {});

  EXPECT_EQ(layout.size().width, 0);
  EXPECT_DOUBLE_EQ(layout.size().height, line);
}

TEST_F(Text, WrapsAtWordsWithinTheWidth) {
  const TextLayout layout(styled_text("one two three four"_ns, style), {.width = 50});

  EXPECT_GT(layout.line_count(), 1);
  EXPECT_LE(layout.size().width, 50);
  EXPECT_NEAR(layout.size().height, layout.line_count() * line, 1e-9);
  EXPECT_FALSE(layout.is_truncated());
}

TEST_F(Text, TruncatesTheTailToOneLine) {
  const TextLayout layout(styled_text("A title that is much too long for its label"_ns, style),
                          {.width = 60, .lines = 1, .break_mode = NSLineBreakByTruncatingTail});

  EXPECT_EQ(layout.line_count(), 1);
  EXPECT_TRUE(layout.is_truncated());
  EXPECT_NEAR(layout.size().width, 60, 8);
  EXPECT_LT(layout.size().width, 60.5);
}

TEST_F(Text, WhenNotEvenTheEllipsisFitsTheTextIsDrawnAsItIs) {
  const auto text = styled_text("W"_ns, style);
  const double width = TextLayout(text, {}).size().width;
  const TextLayout layout(text,
                          {.width = 4, .lines = 1, .break_mode = NSLineBreakByTruncatingTail});

  EXPECT_FALSE(layout.is_truncated());
  EXPECT_DOUBLE_EQ(layout.size().width, width);
}

TEST_F(Text, TextThatJustFitsIsNotTruncated) {
  const auto text = styled_text("Let It Be"_ns, style);
  const double width = TextLayout(text, {}).size().width;

  const TextLayout layout(text,
                          {.width = width, .lines = 1, .break_mode = NSLineBreakByTruncatingTail});

  EXPECT_FALSE(layout.is_truncated());
}

TEST_F(Text, OneLineStopsAtTheFirstLineFeed) {
  const TextLayout layout(styled_text("one\ntwo"_ns, style), {.width = 100, .lines = 1});

  EXPECT_EQ(layout.line_count(), 1);
  EXPECT_TRUE(layout.is_truncated());
}

TEST_F(Text, OnlyLinesThatFitTheHeightAreKept) {
  const TextLayout layout(styled_text("a\nb\nc\nd"_ns, style),
                          {.width = 100, .height = 2.5 * line});
  EXPECT_EQ(layout.line_count(), 2);
}

TEST_F(Text, InvisibleTextIsNotShaped) {
  const TextFrame frame{.width = 300, .lines = 1, .break_mode = NSLineBreakByTruncatingTail};
  const NSString title = string_of(std::string(1 << 20, 'i'));

  const auto text = styled_text(title, style, host::uikit::visible_limit(style, frame));
  const TextLayout layout(text, frame);

  EXPECT_LT(text.bytes.size(), 10'000u);
  EXPECT_TRUE(text.is_cut);
  EXPECT_NEAR(layout.size().width, 300, 10);
}

TEST_F(Text, UnpairedSurrogatesAreReplaced) {
  const std::array<unichar, 4> units{0xD800, 'a', 0xDC00, 0};
  std::string bytes;

  host::utf16::append_utf8(bytes, units);

  EXPECT_EQ(bytes, "\uFFFDa\uFFFD\uFFFD");
}

TEST_F(Text, CuttingKeepsCharactersWhole) {
  // A clef (a surrogate pair), and an e with a combining accent.
  const NSString text = string_of("\U0001D11Ee\u0301x");
  ASSERT_EQ(text.length(), 5u);

  EXPECT_EQ(host::uikit::character_start(text, 1), 0u);
  EXPECT_EQ(host::uikit::character_start(text, 3), 2u);
  EXPECT_EQ(host::uikit::character_end(text, 2), 4u);
  EXPECT_EQ(styled_text(text, style, 3).bytes, "\U0001D11E");
}

TEST_F(Text, RunsFollowTheAttributes) {
  const auto text =
      NSMutableAttributedString::alloc().initWithString("red and black"_ns).autorelease();
  text.addAttribute(NSForegroundColorAttributeName, UIColor::redColor(), {0, 3});

  const auto styled = styled_text(text, style);

  ASSERT_EQ(styled.runs.size(), 2u);
  EXPECT_EQ(styled.runs[0].end, 3u);
  EXPECT_EQ(styled.runs[0].style.color.red, 1);
  EXPECT_EQ(styled.runs[1].style.color, style.color);
  EXPECT_EQ(styled.runs[1].end, styled.bytes.size());
}

TEST_F(Text, KerningWidensEveryGapByItsAmount) {
  const auto attributes =
      NSDictionary::dictionaryWithObject(NSNumber::numberWithDouble(2), NSKernAttributeName);
  const auto text = NSAttributedString::alloc().initWithString("abcd"_ns, attributes).autorelease();

  const double plain = TextLayout(styled_text("abcd"_ns, style), {}).size().width;
  const double kerned = TextLayout(styled_text(text, style), {}).size().width;

  EXPECT_NEAR(kerned - plain, 6, 0.1);
}

TEST_F(Text, CaretAndByteConvertBothWays) {
  const TextLayout layout(styled_text("Search"_ns, style), {});
  for (std::size_t byte = 0; byte <= 6; ++byte)
    EXPECT_EQ(layout.byte_at(layout.caret_position(byte) + 0.01), byte);
}

TEST_F(Text, DrawsInItsColourInsideItsRectangle) {
  UIGraphicsBeginImageContext({60, 20});
  const auto red = style_of(UIFont::systemFontOfSize(10), UIColor::redColor());
  const TextLayout layout(styled_text("Hello"_ns, red),
                          {.width = 60, .lines = 1, .alignment = NSTextAlignmentRight});

  layout.draw(host::uikit::current_drawing(), {0, 0, 60, 20});

  const CGContextRef context = UIGraphicsGetCurrentContext();
  const auto* pixels = static_cast<const unsigned char*>(CGBitmapContextGetData(context));
  long left = 0, right = 0, other_colours = 0;
  for (std::size_t y = 0; y < 20; ++y) {
    for (std::size_t x = 0; x < 60; ++x) {
      const auto* pixel = pixels + y * CGBitmapContextGetBytesPerRow(context) + x * 4;
      (x < 30 ? left : right) += pixel[3];
      other_colours += pixel[0] + pixel[1];
    }
  }
  UIGraphicsEndImageContext();
  EXPECT_EQ(left, 0);
  EXPECT_GT(right, 1000);
  EXPECT_EQ(other_colours, 0);
}

TEST_F(Text, AStringDrawnWithAFontAloneTakesTheFillColour) {
  UIGraphicsBeginImageContext({60, 20});
  UIColor::redColor().set();
  objc::cast<NSStringDrawing>("Hello"_ns)
      .drawInRect({0, 0, 60, 20}, UIFont::systemFontOfSize(10), NSLineBreakByClipping,
                  NSTextAlignmentLeft);

  const CGContextRef context = UIGraphicsGetCurrentContext();
  const auto* pixels = static_cast<const unsigned char*>(CGBitmapContextGetData(context));
  long red = 0, other_colours = 0;
  for (std::size_t byte = 0; byte < 20 * CGBitmapContextGetBytesPerRow(context); byte += 4) {
    red += pixels[byte + 2];
    other_colours += pixels[byte] + pixels[byte + 1];
  }
  UIGraphicsEndImageContext();
  EXPECT_GT(red, 1000);
  EXPECT_EQ(other_colours, 0);
}

}  // namespace
