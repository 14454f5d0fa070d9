#include <algorithm>

#include "host/uikit/text/characters.h"
#include "host/uikit/text/text_field.h"

// How a text field is typed into, and what it asks and tells its delegate on the way.

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
  if (!super<BOOL>("becomeFirstResponder"_sel)) return NO;
  editing_ = YES;
  caret_index_ = text_->length();
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
  if (!delegate_agrees("textFieldShouldEndEditing:"_sel)) return NO;
  if (!super<BOOL>("resignFirstResponder"_sel)) return NO;
  const auto alive = objc::Ref<UITextField>::retain(self);
  unmark_text();
  editing_ = NO;
  caret_.hide();
  scrolled_ = 0;
  self.setNeedsDisplay();
  self.setNeedsLayout();
  tell_delegate("textFieldDidEndEditing:"_sel);
  self.sendActionsForControlEvents(UIControlEventEditingDidEnd);
  return YES;
}

void TextField::end_tracking(UITouch touch, UIEvent event) {
  super<>("endTrackingWithTouch:withEvent:"_sel, touch, event);
  const CGPoint point = touch.locationInView(self);
  if (!self.pointInside(point, event) || !self.becomeFirstResponder()) return;
  const TextLayout layout = layout_contents();
  const double x = point.x - text_origin(self.editingRectForBounds(self.bounds()), layout);
  const std::string before = styled_contents().bytes.substr(0, layout.byte_at(x));
  caret_index_ = NSString::stringWithUTF8String(before.c_str()).length();
  self.setNeedsLayout();
}

bool TextField::may_replace(NSRange range, NSString text) {
  const objc::Sel question = "textField:shouldChangeCharactersInRange:replacementString:"_sel;
  if (!delegate_.respondsToSelector(question)) return true;
  return delegate_.shouldChangeCharactersInRange(self, range, text);
}

void TextField::replace(NSRange range, NSString text) {
  text_.reset(text_->stringByReplacingCharactersInRange(range, text));
  caret_index_ = range.location + text.length();
  marked_ = {};
}

void TextField::text_edited() {
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
  const NSRange range = marked_.length ? marked_ : NSRange{caret_index_, 0};
  if (!may_replace(range, text)) return;
  replace(range, text);
  text_edited();
}

void TextField::delete_backward() {
  NSRange range = marked_;
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
  const NSRange range = marked_.length ? marked_ : NSRange{caret_index_, 0};
  const NSString composed = text ? text : ""_ns;
  replace(range, composed);
  marked_ = {range.location, composed.length()};
  caret_index_ = range.location + std::min<std::size_t>(selected.location, composed.length());
  text_edited();
}

void TextField::unmark_text() {
  if (!marked_.length) return;
  caret_index_ = marked_.location + marked_.length;
  marked_ = {};
  self.setNeedsDisplay();
  self.setNeedsLayout();
}

void TextField::clear_from_button() {
  if (!delegate_agrees("textFieldShouldClear:"_sel)) return;
  replace({0, text_->length()}, ""_ns);
  text_edited();
}

void TextField::move_caret(Motion motion) {
  switch (motion) {
    case Motion::ToPrevious:
      if (caret_index_ > 0) caret_index_ = character_start(text_.get(), caret_index_ - 1);
      break;
    case Motion::ToNext:
      caret_index_ = character_end(text_.get(), caret_index_);
      break;
    case Motion::ToStart:
      caret_index_ = 0;
      break;
    case Motion::ToEnd:
      caret_index_ = text_->length();
      break;
  }
  marked_ = {};
  self.setNeedsDisplay();
  self.setNeedsLayout();
}

}  // namespace host::uikit
