#include "host/uikit/drawing/font.h"

#include <fmt/format.h>

#include <functional>
#include <string>

namespace host::uikit {
namespace {

constexpr CGFloat kLabelSize = 17;
constexpr CGFloat kButtonSize = 18;
constexpr CGFloat kSystemSize = 14;
constexpr CGFloat kSmallSystemSize = 12;

UIFont make_font(const FontFace& face, CGFloat size) {
  const UIFont font = UIFont::alloc().init().autorelease();
  objc::state_of<Font>(font).prepare(face, size);
  return font;
}

NSString string_from(std::string_view text) {
  return NSString::stringWithUTF8String(std::string(text).c_str());
}

UIFont font_with_name(objc::Object, NSString name, CGFloat size) {
  if (!name) return nil;
  const std::optional<FontFace> face = face_named(name.UTF8String());
  return face ? make_font(*face, size) : UIFont();
}

UIFont system_font(objc::Object, CGFloat size) {
  return make_font(system_face(), size);
}
UIFont bold_system_font(objc::Object, CGFloat size) {
  return make_font(bold_system_face(), size);
}
UIFont italic_system_font(objc::Object, CGFloat size) {
  return make_font(italic_system_face(), size);
}

CGFloat label_size(objc::Object) {
  return kLabelSize;
}
CGFloat button_size(objc::Object) {
  return kButtonSize;
}
CGFloat system_size(objc::Object) {
  return kSystemSize;
}
CGFloat small_system_size(objc::Object) {
  return kSmallSystemSize;
}

}  // namespace

void Font::prepare(const FontFace& face, CGFloat size) {
  face_ = face;
  // For an invalid size the platform falls back to its standard size.
  size_ = size > 0 ? size : kSystemSize;
}

UIFont Font::with_size(CGFloat size) const {
  return make_font(face_, size);
}

NSString Font::font_name() const {
  return string_from(face_.name);
}

NSString Font::family_name() const {
  return string_from(face_.family);
}

CGFloat Font::line_height() const {
  const FaceMetrics metrics = metrics_of(face_);
  return (metrics.ascender - metrics.descender + metrics.leading) * size_;
}

BOOL Font::is_equal(objc::Object other) const {
  if (other == self) return YES;
  if (!objc::cast<NSObject>(other).isKindOfClass(UIFont::cls())) return NO;
  const Font& font = objc::state_of<Font>(other);
  return font.face_.name == face_.name && font.size_ == size_;
}

NSUInteger Font::hash() const {
  return std::hash<std::string_view>()(face_.name) * 31 + std::hash<double>()(size_);
}

NSString Font::description() const {
  return string_from(fmt::format("{} {:g} pt", face_.name, size_));
}

UIFont Font::copy_with_zone(void*) const {
  return self.retain();
}

void export_font() {
  if (objc_getClass("UIFont")) return;
  objc::ClassBuilder("UIFont", "NSObject")
      .state<Font>()
      .class_method<&font_with_name>("fontWithName:size:")
      .class_method<&system_font>("systemFontOfSize:")
      .class_method<&bold_system_font>("boldSystemFontOfSize:")
      .class_method<&italic_system_font>("italicSystemFontOfSize:")
      .class_method<&label_size>("labelFontSize")
      .class_method<&button_size>("buttonFontSize")
      .class_method<&system_size>("systemFontSize")
      .class_method<&small_system_size>("smallSystemFontSize")
      .method<&Font::with_size>("fontWithSize:")
      .method<&Font::font_name>("fontName")
      .method<&Font::family_name>("familyName")
      .method<&Font::point_size>("pointSize")
      .method<&Font::ascender>("ascender")
      .method<&Font::descender>("descender")
      .method<&Font::cap_height>("capHeight")
      .method<&Font::x_height>("xHeight")
      .method<&Font::line_height>("lineHeight")
      .method<&Font::leading>("leading")
      .method<&Font::is_equal>("isEqual:")
      .method<&Font::hash>("hash")
      .method<&Font::description>("description")
      .method<&Font::copy_with_zone>("copyWithZone:")
      .finish();
}

}  // namespace host::uikit
