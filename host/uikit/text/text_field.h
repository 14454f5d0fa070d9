#pragma once

#include "host/uikit/text/caret.h"
#include "host/uikit/text/text_layout.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/UITextField.h"

namespace host::uikit {

/// One line of text that can be edited. The text before `caret_` is where typing goes; a stretch
/// that an input method is still composing is marked and underlined.
class TextField : public objc::Implementation<TextField, UITextField> {
 public:
  explicit TextField(UITextField owner) : Implementation(owner), text_(kEmpty()) {}

  UITextField init_with_frame(CGRect frame);

  // Contents and looks.
  NSString text() const { return text_.get(); }
  void set_text(NSString text);
  NSString placeholder() const { return placeholder_->string(); }
  void set_placeholder(NSString text);
  NSAttributedString attributed_placeholder() const { return placeholder_.get(); }
  void set_attributed_placeholder(NSAttributedString text);
  UIFont font() const { return font_.get(); }
  void set_font(UIFont font);
  UIColor text_color() const { return text_color_.get(); }
  void set_text_color(UIColor color);
  NSTextAlignment alignment() const { return alignment_; }
  void set_alignment(NSTextAlignment alignment);
  UITextBorderStyle border_style() const { return border_style_; }
  void set_border_style(UITextBorderStyle style);
  objc::Object delegate() const { return delegate_; }
  void set_delegate(objc::Object delegate) {
    delegate_ = objc::cast<UITextFieldDelegate>(delegate);
  }
  BOOL clears_on_begin() const { return clears_on_begin_; }
  void set_clears_on_begin(BOOL clears) { clears_on_begin_ = clears; }

  // The views beside the text.
  UIView left_view() const { return left_.get(); }
  void set_left_view(UIView view) { set_side_view(left_, view); }
  UITextFieldViewMode left_mode() const { return left_mode_; }
  void set_left_mode(UITextFieldViewMode mode) { set_mode(left_mode_, mode); }
  UIView right_view() const { return right_.get(); }
  void set_right_view(UIView view) { set_side_view(right_, view); }
  UITextFieldViewMode right_mode() const { return right_mode_; }
  void set_right_mode(UITextFieldViewMode mode) { set_mode(right_mode_, mode); }
  UITextFieldViewMode clear_mode() const { return clear_mode_; }
  void set_clear_mode(UITextFieldViewMode mode) { set_mode(clear_mode_, mode); }

  // Layout and drawing.
  void layout_subviews();
  CGRect text_rect(CGRect bounds);
  CGRect editing_rect(CGRect bounds);
  CGRect placeholder_rect(CGRect bounds);
  CGRect clear_button_rect(CGRect bounds);
  CGRect left_view_rect(CGRect bounds);
  CGRect right_view_rect(CGRect bounds);
  CGSize size_that_fits(CGSize size);
  CGSize intrinsic_content_size();
  void draw_rect(CGRect rect);
  void draw_text_in_rect(CGRect rect);
  void draw_placeholder_in_rect(CGRect rect);

  // Being edited.
  BOOL is_editing() const { return editing_; }
  BOOL can_become_first_responder();
  BOOL become_first_responder();
  BOOL resign_first_responder();
  void end_tracking(UITouch touch, UIEvent event);
  BOOL has_text() const { return text_->length() > 0; }
  void insert_text(NSString text);
  void delete_backward();
  void set_marked_text(NSString text, NSRange selected);
  void unmark_text();
  void clear_from_button();

  // For the physical keyboard.
  enum class Motion { ToPrevious, ToNext, ToStart, ToEnd };
  void move_caret(Motion motion);
  const Caret& caret() const { return caret_; }

 private:
  static objc::Ref<NSString> kEmpty() { return objc::Ref<NSString>::retain(""_ns); }
  void set_side_view(objc::Ref<UIView>& place, UIView view);
  void set_mode(UITextFieldViewMode& mode, UITextFieldViewMode wanted);
  bool shows(UITextFieldViewMode mode) const;
  bool shows_clear_button() const;
  void place_side_view(UIView view, bool shown, CGRect frame);
  void place_clear_button();
  void update_caret();
  StyledText styled_contents() const;
  StyledText styled_placeholder() const;
  TextLayout layout_contents() const;
  double caret_offset(const TextLayout& layout) const;
  double text_origin(CGRect rect, const TextLayout& layout);

  void return_pressed();
  bool may_replace(NSRange range, NSString text);
  void replace(NSRange range, NSString text);
  void text_edited();
  bool delegate_agrees(objc::Sel question);
  void tell_delegate(objc::Sel news);

  objc::Ref<NSString> text_;
  objc::Ref<NSAttributedString> placeholder_;
  objc::Ref<UIFont> font_;
  objc::Ref<UIColor> text_color_;
  objc::Ref<UIView> left_;
  objc::Ref<UIView> right_;
  objc::Ref<UIButton> clear_button_;
  UITextFieldDelegate delegate_;
  Caret caret_;
  std::size_t caret_index_ = 0;
  NSRange marked_;
  /// How far the text is moved to the left so that the caret is in sight.
  double scrolled_ = 0;
  NSTextAlignment alignment_ = NSTextAlignmentLeft;
  UITextBorderStyle border_style_ = UITextBorderStyleNone;
  UITextFieldViewMode left_mode_ = UITextFieldViewModeNever;
  UITextFieldViewMode right_mode_ = UITextFieldViewModeNever;
  UITextFieldViewMode clear_mode_ = UITextFieldViewModeNever;
  BOOL clears_on_begin_ = NO;
  BOOL editing_ = NO;
};

void export_text_field();

}  // namespace host::uikit
