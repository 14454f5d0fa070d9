#pragma once

#include "host/uikit/text/caret.h"
#include "host/uikit/text/selection_marks.h"
#include "host/uikit/text_layout/text_layout.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/UILongPressGestureRecognizer.h"
#include "platform/UIKit/UITextField.h"

namespace host::uikit {

/// One line of editable text. Typing inserts at the caret or replaces the selection; the stretch
/// that an input method is still composing is marked and underlined.
class TextField : public objc::Implementation<TextField, UITextField>, private SelectionDrag {
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

  // Editing.
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

  // Traits for the on-screen keyboard.
  UIKeyboardType keyboard_type() const { return keyboard_type_; }
  void set_keyboard_type(UIKeyboardType type) { keyboard_type_ = type; }
  UIKeyboardAppearance keyboard_appearance() const { return keyboard_appearance_; }
  void set_keyboard_appearance(UIKeyboardAppearance look) { keyboard_appearance_ = look; }
  UIReturnKeyType return_key_type() const { return return_key_type_; }
  void set_return_key_type(UIReturnKeyType type) { return_key_type_ = type; }
  UITextAutocapitalizationType autocapitalization_type() const { return autocapitalization_; }
  void set_autocapitalization_type(UITextAutocapitalizationType type) {
    autocapitalization_ = type;
  }
  NSString text_before_caret() const { return text_->substringToIndex(selection().location); }

  // The selection, in UTF-16 units; its length is 0 when there is only a caret.
  NSRange selection() const;
  /// Selects `range`, grown to whole characters and limited to the text.
  void select(NSRange range);
  BOOL can_perform_action(objc::Sel action, objc::Object sender);
  void cut(objc::Object sender);
  void copy(objc::Object sender);
  void paste(objc::Object sender);
  void select_word(objc::Object sender);
  void select_all(objc::Object sender);
  void long_pressed(UILongPressGestureRecognizer recognizer);

  /// Handles a key of the physical keyboard: `left`, `right`, `home`, `end`, optionally prefixed
  /// with `shift-` or `control-`, and `control-` with a, c, x or v. Returns NO for any other key.
  BOOL press_key(NSString name);

  const Caret& caret() const { return caret_; }
  CGRect caret_frame() const { return caret_.is_shown() ? caret_.frame() : CGRect(); }
  const SelectionMarks& marks() const { return marks_; }

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
  std::size_t index_at(CGPoint point);
  double offset_of(const TextLayout& layout, std::size_t index) const;

  enum class Motion { ToPrevious, ToNext, ToPreviousWord, ToNextWord, ToStart, ToEnd };
  enum class Selecting { No, Yes };
  void move_caret(Motion motion, Selecting selecting);
  std::size_t moved(Motion motion) const;
  void put_caret(std::size_t index);
  void selection_changed();
  NSRange typing_range() const;
  NSString selected_text() const { return text_->substringWithRange(selection()); }
  void show_menu();
  void selection_dragged(SelectionEnd end, CGPoint on_screen) override;
  void selection_drag_ended(NSUInteger taps) override;

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
  SelectionMarks marks_;
  /// The end of the selection that moves, and the end that stays.
  std::size_t caret_index_ = 0;
  std::size_t anchor_index_ = 0;
  NSRange marked_;
  /// How far the text is shifted to the left to keep the caret in sight.
  double scrolled_ = 0;
  NSTextAlignment alignment_ = NSTextAlignmentLeft;
  UITextBorderStyle border_style_ = UITextBorderStyleNone;
  UITextFieldViewMode left_mode_ = UITextFieldViewModeNever;
  UITextFieldViewMode right_mode_ = UITextFieldViewModeNever;
  UITextFieldViewMode clear_mode_ = UITextFieldViewModeNever;
  UIKeyboardType keyboard_type_ = UIKeyboardTypeDefault;
  UIKeyboardAppearance keyboard_appearance_ = UIKeyboardAppearanceDefault;
  UIReturnKeyType return_key_type_ = UIReturnKeyDefault;
  UITextAutocapitalizationType autocapitalization_ = UITextAutocapitalizationTypeSentences;
  BOOL clears_on_begin_ = NO;
  BOOL editing_ = NO;
};

void export_text_field();

}  // namespace host::uikit
