#include "host/uikit/text/text_field.h"

namespace host::uikit {
namespace {

void add_contents(objc::ClassBuilder& field) {
  field.method<&TextField::init_with_frame>("initWithFrame:")
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
      .method<&TextField::set_clear_mode>("setClearButtonMode:");
}

void add_layout(objc::ClassBuilder& field) {
  field.method<&TextField::layout_subviews>("layoutSubviews")
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
      .method<&TextField::draw_placeholder_in_rect>("drawPlaceholderInRect:");
}

void add_editing(objc::ClassBuilder& field) {
  field.method<&TextField::can_become_first_responder>("canBecomeFirstResponder")
      .method<&TextField::become_first_responder>("becomeFirstResponder")
      .method<&TextField::resign_first_responder>("resignFirstResponder")
      .method<&TextField::end_tracking>("endTrackingWithTouch:withEvent:")
      .method<&TextField::has_text>("hasText")
      .method<&TextField::insert_text>("insertText:")
      .method<&TextField::delete_backward>("deleteBackward")
      .method<&TextField::set_marked_text>("setMarkedText:selectedRange:")
      .method<&TextField::unmark_text>("unmarkText")
      .method<&TextField::clear_from_button>("_clearButtonClicked:")
      .method<&TextField::can_perform_action>("canPerformAction:withSender:")
      .method<&TextField::cut>("cut:")
      .method<&TextField::copy>("copy:")
      .method<&TextField::paste>("paste:")
      .method<&TextField::select_word>("select:")
      .method<&TextField::select_all>("selectAll:")
      .method<&TextField::long_pressed>("_longPressed:")
      .method<&TextField::press_key>("_pressKey:")
      .method<&TextField::caret_frame>("_caretFrame")
      .method<&TextField::text_before_caret>("_textBeforeCaret")
      .method<&TextField::keyboard_type>("keyboardType")
      .method<&TextField::set_keyboard_type>("setKeyboardType:")
      .method<&TextField::keyboard_appearance>("keyboardAppearance")
      .method<&TextField::set_keyboard_appearance>("setKeyboardAppearance:")
      .method<&TextField::return_key_type>("returnKeyType")
      .method<&TextField::set_return_key_type>("setReturnKeyType:")
      .method<&TextField::autocapitalization_type>("autocapitalizationType")
      .method<&TextField::set_autocapitalization_type>("setAutocapitalizationType:");
}

}  // namespace

void export_text_field() {
  if (objc_getClass("UITextField")) return;
  objc::ClassBuilder field("UITextField", "UIControl");
  field.state<TextField>();
  add_contents(field);
  add_layout(field);
  add_editing(field);
  field.finish();
}

}  // namespace host::uikit
