#include <array>
#include <utility>

#include "host/uikit/text_view/text_view.h"
#include "host/uikit/view/responder.h"

// Typing into a text view, and the messages to its delegate.

namespace host::uikit {

bool TextView::delegate_agrees(objc::Sel question) {
  const auto delegate = objc::cast<NSObject>(self.delegate());
  return !delegate.respondsToSelector(question) ||
         objc::send<BOOL>(delegate, question, objc::Object(self));
}

void TextView::tell_delegate(objc::Sel news) {
  const auto delegate = objc::cast<NSObject>(self.delegate());
  if (delegate.respondsToSelector(news)) objc::send<>(delegate, news, objc::Object(self));
}

void TextView::set_editable(BOOL editable) {
  editable_ = editable;
  if (!editable) self.resignFirstResponder();
}

BOOL TextView::become_first_responder() {
  if (self.isFirstResponder()) return YES;
  if (!self.canBecomeFirstResponder()) return NO;
  if (!delegate_agrees("textViewShouldBeginEditing:"_sel)) return NO;
  if (!super<BOOL>("becomeFirstResponder"_sel)) return NO;
  editing_ = YES;
  caret_moved();
  tell_delegate("textViewDidBeginEditing:"_sel);
  return YES;
}

BOOL TextView::resign_first_responder() {
  if (!self.isFirstResponder()) return super<BOOL>("resignFirstResponder"_sel);
  if (!must_resign() && !delegate_agrees("textViewShouldEndEditing:"_sel)) return NO;
  if (!super<BOOL>("resignFirstResponder"_sel)) return NO;
  // A receiver of this message may release the view.
  const auto alive = objc::Ref<UITextView>::retain(self);
  unmark_text();
  editing_ = NO;
  caret_.hide();
  tell_delegate("textViewDidEndEditing:"_sel);
  return YES;
}

void TextView::handle_tap(UITapGestureRecognizer recognizer) {
  if (!self.becomeFirstResponder()) return;
  text_.move_to(index_near(recognizer.locationInView(self)));
  aimed_x_.reset();
  caret_moved();
}

bool TextView::may_replace(NSRange range, NSString text) {
  const objc::Sel question = "textView:shouldChangeTextInRange:replacementText:"_sel;
  const auto delegate = objc::cast<UITextViewDelegate>(self.delegate());
  if (!delegate.respondsToSelector(question)) return true;
  return delegate.shouldChangeTextInRange(self, range, text);
}

void TextView::text_edited() {
  text_replaced();
  tell_delegate("textViewDidChange:"_sel);
}

void TextView::caret_moved() {
  caret_wants_sight_ = true;
  self.setNeedsLayout();
}

void TextView::insert_text(NSString text) {
  const NSRange range = text_.insertion_range();
  if (!editable_ || !may_replace(range, text)) return;
  text_.replace(range, text);
  text_edited();
}

void TextView::delete_backward() {
  const NSRange range = text_.backspace_range();
  if (!editable_ || !range.length || !may_replace(range, ""_ns)) return;
  text_.replace(range, ""_ns);
  text_edited();
}

void TextView::set_marked_text(NSString text, NSRange selected) {
  if (!editable_) return;
  text_.compose(text, selected);
  text_edited();
}

void TextView::unmark_text() {
  if (text_.end_composing()) text_replaced();
}

void TextView::move_vertically(Motion direction) {
  const CGRect present = caret_rect(text_.caret());
  const double x = aimed_x_.value_or(present.centre().x);
  const double half = present.size.height / 2;
  const double y = direction == Motion::Up ? present.min_y() - half : present.max_y() + half;
  const CGPoint origin = text_origin();
  if (y < origin.y) {
    text_.move_to(0);
  } else if (y > origin.y + layout().size().height) {
    text_.move_to(text_.length());
  } else {
    text_.move_to(index_near({x, y}));
  }
  aimed_x_ = x;
}

void TextView::move_caret(Motion motion) {
  const std::optional<double> aimed = std::exchange(aimed_x_, {});
  switch (motion) {
    case Motion::ToPrevious:
      return text_.move_to_previous();
    case Motion::ToNext:
      return text_.move_to_next();
    case Motion::ToLineStart:
      return text_.move_to(index_of_byte(line_of_caret().first));
    case Motion::ToLineEnd:
      return text_.move_to(index_of_byte(line_of_caret().last));
    case Motion::Up:
    case Motion::Down:
      aimed_x_ = aimed;
      return move_vertically(motion);
  }
}

BOOL TextView::press_key(NSString name) {
  static constexpr std::array<std::pair<std::string_view, Motion>, 6> kMotions{
      {{"left", Motion::ToPrevious},
       {"right", Motion::ToNext},
       {"home", Motion::ToLineStart},
       {"end", Motion::ToLineEnd},
       {"up", Motion::Up},
       {"down", Motion::Down}}};
  const std::string_view pressed = name.UTF8String();
  for (const auto& [known, motion] : kMotions) {
    if (known != pressed) continue;
    if (text_.end_composing()) looks_changed();
    move_caret(motion);
    caret_moved();
    return YES;
  }
  return NO;
}

}  // namespace host::uikit
