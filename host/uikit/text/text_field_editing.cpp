#include <algorithm>

#include "host/uikit/text/edit_menu.h"
#include "host/uikit/text/text_field.h"
#include "host/uikit/text_layout/characters.h"
#include "host/uikit/view/responder.h"

// Typing into a text field, and the messages to its delegate.

namespace host::uikit {

bool TextField::delegate_agrees(objc::Sel question) {
  return !delegate_.respondsToSelector(question) ||
         objc::send<BOOL>(delegate_, question, objc::Object(self));
}

void TextField::tell_delegate(objc::Sel news) {
  if (delegate_.respondsToSelector(news)) objc::send<>(delegate_, news, objc::Object(self));
}

BOOL TextField::can_become_first_responder() {
  return self.isEnabled();
}

BOOL TextField::become_first_responder() {
  if (self.isFirstResponder()) return YES;
  if (!self.canBecomeFirstResponder()) return NO;
  if (!delegate_agrees("textFieldShouldBeginEditing:"_sel)) return NO;
  // The keyboard appears once the field and its delegate are ready for it.
  const FirstResponderChange change;
  if (!super<BOOL>("becomeFirstResponder"_sel)) return NO;
  editing_ = YES;
  caret_index_ = anchor_index_ = text_->length();
  if (clears_on_begin_ && has_text() && delegate_agrees("textFieldShouldClear:"_sel))
    replace({0, text_->length()}, ""_ns);
  self.setNeedsDisplay();
  self.setNeedsLayout();
  tell_delegate("textFieldDidBeginEditing:"_sel);
  self.sendActionsForControlEvents(UIControlEventEditingDidBegin);
  return YES;
}

BOOL TextField::resign_first_responder() {
  if (!self.isFirstResponder()) return super<BOOL>("resignFirstResponder"_sel);
  if (!must_resign() && !delegate_agrees("textFieldShouldEndEditing:"_sel)) return NO;
  if (!super<BOOL>("resignFirstResponder"_sel)) return NO;
  const auto alive = objc::Ref<UITextField>::retain(self);
  unmark_text();
  editing_ = NO;
  caret_.hide();
  marks_.hide();
  hide_edit_menu();
  scrolled_ = 0;
  self.setNeedsDisplay();
  self.setNeedsLayout();
  tell_delegate("textFieldDidEndEditing:"_sel);
  self.sendActionsForControlEvents(UIControlEventEditingDidEnd);
  return YES;
}

bool TextField::may_replace(NSRange range, NSString text) {
  const objc::Sel question = "textField:shouldChangeCharactersInRange:replacementString:"_sel;
  if (!delegate_.respondsToSelector(question)) return true;
  return delegate_.shouldChangeCharactersInRange(self, range, text);
}

void TextField::replace(NSRange range, NSString text) {
  text_.reset(text_->stringByReplacingCharactersInRange(range, text));
  caret_index_ = anchor_index_ = range.location + text.length();
  marked_ = {};
}

void TextField::text_edited() {
  hide_edit_menu();
  self.setNeedsDisplay();
  self.setNeedsLayout();
  self.sendActionsForControlEvents(UIControlEventEditingChanged);
}

void TextField::return_pressed() {
  if (!delegate_agrees("textFieldShouldReturn:"_sel)) return;
  self.sendActionsForControlEvents(UIControlEventEditingDidEndOnExit);
}

void TextField::insert_text(NSString text) {
  if (text.isEqualToString("\n"_ns)) return return_pressed();
  const NSRange range = typing_range();
  if (!may_replace(range, text)) return;
  replace(range, text);
  text_edited();
}

void TextField::delete_backward() {
  NSRange range = typing_range();
  if (!range.length) {
    if (caret_index_ == 0) return;
    const std::size_t start = character_start(text_.get(), caret_index_ - 1);
    range = {start, caret_index_ - start};
  }
  if (!may_replace(range, ""_ns)) return;
  replace(range, ""_ns);
  text_edited();
}

void TextField::set_marked_text(NSString text, NSRange selected) {
  const NSString composed = text ? text : ""_ns;
  // Composing nothing must not delete the selection.
  if (!marked_.length && !composed.length()) return;
  const NSRange range = typing_range();
  replace(range, composed);
  marked_ = {range.location, composed.length()};
  caret_index_ = anchor_index_ =
      range.location + std::min<std::size_t>(selected.location, composed.length());
  text_edited();
}

void TextField::unmark_text() {
  if (!marked_.length) return;
  caret_index_ = anchor_index_ = marked_.location + marked_.length;
  marked_ = {};
  self.setNeedsDisplay();
  self.setNeedsLayout();
}

void TextField::clear_from_button() {
  if (!delegate_agrees("textFieldShouldClear:"_sel)) return;
  replace({0, text_->length()}, ""_ns);
  text_edited();
}

}  // namespace host::uikit
