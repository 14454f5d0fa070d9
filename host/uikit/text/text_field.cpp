#include "host/uikit/text/text_field.h"

namespace host::uikit {
namespace {

constexpr CGFloat kFieldFontSize = 17;

UIColor placeholder_color() {
  return UIColor::colorWithRed(0.78, 0.78, 0.80, 1);
}

}  // namespace

UITextField TextField::init_with_frame(CGRect frame) {
  font_.reset(UIFont::systemFontOfSize(kFieldFontSize));
  text_color_.reset(UIColor::blackColor());
  super<UITextField>("initWithFrame:"_sel, frame);
  self.setOpaque(NO);
  self.setContentMode(UIViewContentModeRedraw);
  const UILongPressGestureRecognizer press = objc::cast<UILongPressGestureRecognizer>(
      UILongPressGestureRecognizer::alloc().initWithTarget(self, "_longPressed:"_sel));
  self.addGestureRecognizer(press.autorelease());
  return self;
}

void TextField::set_text(NSString text) {
  text_ = text ? objc::Ref<NSString>::adopt(text.copy()) : kEmpty();
  marked_ = {};
  caret_index_ = anchor_index_ = text_->length();
  self.setNeedsDisplay();
  self.setNeedsLayout();
}

void TextField::set_placeholder(NSString text) {
  if (!text) return self.setAttributedPlaceholder(nil);
  self.setAttributedPlaceholder(NSAttributedString::alloc().initWithString(text).autorelease());
}

void TextField::set_attributed_placeholder(NSAttributedString text) {
  placeholder_ = objc::Ref<NSAttributedString>::adopt(text.copy());
  self.setNeedsDisplay();
}

void TextField::set_font(UIFont font) {
  font_.reset(font ? font : UIFont::systemFontOfSize(kFieldFontSize));
  self.setNeedsDisplay();
  self.setNeedsLayout();
}

void TextField::set_text_color(UIColor color) {
  text_color_.reset(color ? color : UIColor::blackColor());
  self.setNeedsDisplay();
}

void TextField::set_alignment(NSTextAlignment alignment) {
  alignment_ = alignment;
  self.setNeedsDisplay();
  self.setNeedsLayout();
}

void TextField::set_border_style(UITextBorderStyle style) {
  border_style_ = style;
  self.setNeedsDisplay();
  self.setNeedsLayout();
}

void TextField::set_side_view(objc::Ref<UIView>& place, UIView view) {
  if (place.get() == view) return;
  place->removeFromSuperview();
  place.reset(view);
  self.setNeedsDisplay();
  self.setNeedsLayout();
}

void TextField::set_mode(UITextFieldViewMode& mode, UITextFieldViewMode wanted) {
  mode = wanted;
  self.setNeedsDisplay();
  self.setNeedsLayout();
}

StyledText TextField::styled_contents() const {
  StyledText text = styled_text(text_.get(), style_of(font_.get(), text_color_.get()));
  if (!marked_.length) return text;
  // The text still being composed is underlined.
  const TextStyle plain = text.runs.front().style;
  TextStyle composed = plain;
  composed.underline = true;
  const std::size_t begin = utf8_of(text_->substringToIndex(marked_.location)).size();
  const std::size_t end =
      utf8_of(text_->substringToIndex(marked_.location + marked_.length)).size();
  text.runs = {{0, begin, plain}, {begin, end, composed}, {end, text.bytes.size(), plain}};
  return text;
}

StyledText TextField::styled_placeholder() const {
  return styled_text(placeholder_.get(), style_of(font_.get(), placeholder_color()));
}

}  // namespace host::uikit
