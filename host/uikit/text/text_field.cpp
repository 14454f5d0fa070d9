#include "host/uikit/text/text_field.h"

namespace host::uikit {
namespace {

constexpr CGFloat kStandardSize = 17;

UIColor placeholder_color() {
  return UIColor::colorWithRed(0.78, 0.78, 0.80, 1);
}

}  // namespace

UITextField TextField::init_with_frame(CGRect frame) {
  font_.reset(UIFont::systemFontOfSize(kStandardSize));
  text_color_.reset(UIColor::blackColor());
  super<UITextField>("initWithFrame:"_sel, frame);
  self.setOpaque(NO);
  self.setContentMode(UIViewContentModeRedraw);
  return self;
}

void TextField::set_text(NSString text) {
  text_ = text ? objc::Ref<NSString>::adopt(text.copy()) : kEmpty();
  marked_ = {};
  caret_index_ = text_->length();
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
  font_.reset(font ? font : UIFont::systemFontOfSize(kStandardSize));
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
  // What is still being composed is underlined.
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

void export_text_field() {
  if (objc_getClass("UITextField")) return;
  objc::ClassBuilder("UITextField", "UIControl")
      .state<TextField>()
      .method<&TextField::init_with_frame>("initWithFrame:")
      .method<&TextField::text>("text")
      .method<&TextField::set_text>("setText:")
      .method<&TextField::placeholder>("placeholder")
      .method<&TextField::set_placeholder>("setPlaceholder:")
      .method<&TextField::attributed_placeholder>("attributedPlaceholder")
      .method<&TextField::set_attributed_placeholder>("setAttributedPlaceholder:")
      .method<&TextField::font>("font")
      .method<&TextField::set_font>("setFont:")
      .method<&TextField::text_color>("textColor")
      .method<&TextField::set_text_color>("setTextColor:")
      .method<&TextField::alignment>("textAlignment")
      .method<&TextField::set_alignment>("setTextAlignment:")
      .method<&TextField::border_style>("borderStyle")
      .method<&TextField::set_border_style>("setBorderStyle:")
      .method<&TextField::delegate>("delegate")
      .method<&TextField::set_delegate>("setDelegate:")
      .method<&TextField::is_editing>("isEditing")
      .method<&TextField::clears_on_begin>("clearsOnBeginEditing")
      .method<&TextField::set_clears_on_begin>("setClearsOnBeginEditing:")
      .method<&TextField::left_view>("leftView")
      .method<&TextField::set_left_view>("setLeftView:")
      .method<&TextField::left_mode>("leftViewMode")
      .method<&TextField::set_left_mode>("setLeftViewMode:")
      .method<&TextField::right_view>("rightView")
      .method<&TextField::set_right_view>("setRightView:")
      .method<&TextField::right_mode>("rightViewMode")
      .method<&TextField::set_right_mode>("setRightViewMode:")
      .method<&TextField::clear_mode>("clearButtonMode")
      .method<&TextField::set_clear_mode>("setClearButtonMode:")
      .method<&TextField::layout_subviews>("layoutSubviews")
      .method<&TextField::text_rect>("textRectForBounds:")
      .method<&TextField::editing_rect>("editingRectForBounds:")
      .method<&TextField::placeholder_rect>("placeholderRectForBounds:")
      .method<&TextField::clear_button_rect>("clearButtonRectForBounds:")
      .method<&TextField::left_view_rect>("leftViewRectForBounds:")
      .method<&TextField::right_view_rect>("rightViewRectForBounds:")
      .method<&TextField::size_that_fits>("sizeThatFits:")
      .method<&TextField::intrinsic_content_size>("intrinsicContentSize")
      .method<&TextField::draw_rect>("drawRect:")
      .method<&TextField::draw_text_in_rect>("drawTextInRect:")
      .method<&TextField::draw_placeholder_in_rect>("drawPlaceholderInRect:")
      .method<&TextField::can_become_first_responder>("canBecomeFirstResponder")
      .method<&TextField::become_first_responder>("becomeFirstResponder")
      .method<&TextField::resign_first_responder>("resignFirstResponder")
      .method<&TextField::end_tracking>("endTrackingWithTouch:withEvent:")
      .method<&TextField::has_text>("hasText")
      .method<&TextField::insert_text>("insertText:")
      .method<&TextField::delete_backward>("deleteBackward")
      .method<&TextField::set_marked_text>("setMarkedText:selectedRange:")
      .method<&TextField::unmark_text>("unmarkText")
      .method<&TextField::clear_from_button>("_clearButtonClicked:")
      .finish();
}

}  // namespace host::uikit
