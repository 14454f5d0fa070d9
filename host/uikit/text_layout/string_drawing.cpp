#include <algorithm>
#include <cmath>

#include "host/quartzcore/drawing/context.h"
#include "host/uikit/drawing/graphics.h"
#include "host/uikit/text_layout/exports.h"
#include "host/uikit/text_layout/text_layout.h"
#include "objc/class_builder.h"
#include "platform/UIKit/NSAttributedStringAdditions.h"
#include "platform/UIKit/NSStringDrawing.h"

// What UIKit adds to Foundation's strings: measuring, drawing, and the names of the attributes.

__attribute__((visibility("default"), used)) NSString NSFontAttributeName;
__attribute__((visibility("default"), used)) NSString NSForegroundColorAttributeName;
__attribute__((visibility("default"), used)) NSString NSBackgroundColorAttributeName;
__attribute__((visibility("default"), used)) NSString NSKernAttributeName;
__attribute__((visibility("default"), used)) NSString NSUnderlineStyleAttributeName;

namespace host::uikit {
namespace {

// Without a font attribute, strings are drawn in the platform's default size.
constexpr double kDefaultSize = 12;

StyledText with_attributes(NSString text, NSDictionary attributes) {
  const auto attributed =
      NSAttributedString::alloc().initWithString(text, attributes).autorelease();
  TextStyle base;
  base.size = kDefaultSize;
  return styled_text(attributed, base);
}

double limit_of(CGFloat extent) {
  return extent > 0 ? extent : kUnlimited;
}

CGSize size_with_font(NSString self, UIFont font) {
  TextFrame frame;
  frame.lines = 1;
  return TextLayout(styled_text(self, style_of(font, nil)), frame).size();
}

CGSize size_with_font_and_limit(NSString self, UIFont font, CGSize limit, NSLineBreakMode mode) {
  TextFrame frame;
  frame.width = limit_of(limit.width);
  frame.height = limit_of(limit.height);
  frame.break_mode = mode;
  const TextStyle style = style_of(font, nil);
  return TextLayout(styled_text(self, style, visible_limit(style, frame)), frame).size();
}

CGSize size_with_attributes(NSString self, NSDictionary attributes) {
  return TextLayout(with_attributes(self, attributes), {}).size();
}

void draw_at_point(NSString self, CGPoint point, NSDictionary attributes) {
  cairo_t* drawing = current_drawing();
  if (drawing) TextLayout(with_attributes(self, attributes), {}).draw(drawing, CGRect(point, {}));
}

void draw_in_rect(NSString self, CGRect rect, NSDictionary attributes) {
  cairo_t* drawing = current_drawing();
  if (!drawing) return;
  TextFrame frame;
  frame.width = rect.size.width;
  frame.height = rect.size.height;
  TextLayout(with_attributes(self, attributes), frame).draw(drawing, rect);
}

CGSize draw_in_rect_with_font(NSString self, CGRect rect, UIFont font, NSLineBreakMode mode,
                              NSTextAlignment alignment) {
  cairo_t* drawing = current_drawing();
  if (!drawing) return {};
  TextFrame frame;
  frame.width = rect.size.width;
  frame.height = rect.size.height;
  frame.break_mode = mode;
  frame.alignment = alignment;
  TextStyle style = style_of(font, nil);
  style.color = UIGraphicsGetCurrentContext()->state().fill;
  const TextLayout layout(styled_text(self, style, visible_limit(style, frame)), frame);
  layout.draw(drawing, rect);
  return layout.size();
}

void name_attributes() {
  NSFontAttributeName = "NSFont"_ns;
  NSForegroundColorAttributeName = "NSColor"_ns;
  NSBackgroundColorAttributeName = "NSBackgroundColor"_ns;
  NSKernAttributeName = "NSKern"_ns;
  NSUnderlineStyleAttributeName = "NSUnderline"_ns;
}

}  // namespace

void export_string_drawing() {
  name_attributes();
  const objc::Class cls = NSString::cls();
  objc::add_method<&size_with_font>(cls, "sizeWithFont:");
  objc::add_method<&size_with_font_and_limit>(cls, "sizeWithFont:constrainedToSize:lineBreakMode:");
  objc::add_method<&size_with_attributes>(cls, "sizeWithAttributes:");
  objc::add_method<&draw_at_point>(cls, "drawAtPoint:withAttributes:");
  objc::add_method<&draw_in_rect>(cls, "drawInRect:withAttributes:");
  objc::add_method<&draw_in_rect_with_font>(cls, "drawInRect:withFont:lineBreakMode:alignment:");
}

}  // namespace host::uikit
