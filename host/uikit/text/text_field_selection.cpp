#include <algorithm>

#include "host/uikit/geometry/screen_space.h"
#include "host/uikit/text/edit_menu.h"
#include "host/uikit/text/text_field.h"
#include "host/uikit/text_layout/characters.h"
#include "host/uikit/text_layout/words.h"
#include "platform/UIKit/UIPasteboard.h"
#include "platform/UIKit/UITouch.h"

// The selection of a text field: by fingers, by grabbers and by the menu over it.

namespace host::uikit {
namespace {

constexpr CGFloat kGrabberRoom = 8;

}  // namespace

NSRange TextField::selection() const {
  const std::size_t start = std::min(caret_index_, anchor_index_);
  return {start, std::max(caret_index_, anchor_index_) - start};
}

void TextField::select(NSRange range) {
  const std::size_t length = text_->length();
  const std::size_t start = std::min<std::size_t>(range.location, length);
  const std::size_t end = std::min<std::size_t>(start + std::min(range.length, length), length);
  anchor_index_ = character_start(text_.get(), start);
  // A range that ends inside a character selects the whole character.
  const std::size_t last = character_start(text_.get(), end);
  caret_index_ = last == end ? end : character_end(text_.get(), last);
  selection_changed();
}

void TextField::put_caret(std::size_t index) {
  caret_index_ = anchor_index_ = character_start(text_.get(), index);
  selection_changed();
}

void TextField::selection_changed() {
  // The composed text stays as it is.
  marked_ = {};
  self.setNeedsDisplay();
  self.setNeedsLayout();
}

NSRange TextField::typing_range() const {
  return marked_.length ? marked_ : selection();
}

std::size_t TextField::index_at(CGPoint point) {
  const TextLayout layout = layout_contents();
  const double x = point.x - text_origin(self.editingRectForBounds(self.bounds()), layout);
  const std::string before = styled_contents().bytes.substr(0, layout.byte_at(x));
  return NSString::stringWithUTF8String(before.c_str()).length();
}

void TextField::end_tracking(UITouch touch, UIEvent event) {
  super<>("endTrackingWithTouch:withEvent:"_sel, touch, event);
  const CGPoint point = touch.locationInView(self);
  const bool was_editing = editing_;
  if (!self.pointInside(point, event) || !self.becomeFirstResponder()) return;
  const std::size_t index = index_at(point);
  if (touch.tapCount() >= 3) {
    select_all(nil);
  } else if (touch.tapCount() == 2 && has_text()) {
    select(word_at(text_.get(), index));
    show_menu();
  } else {
    const bool again = was_editing && selection().length == 0 && index == caret_index_;
    const bool had_menu = shown_edit_menu() != nullptr;
    put_caret(index);
    // A tap on the caret itself opens the menu.
    if (again && !had_menu) show_menu();
  }
}

void TextField::long_pressed(UILongPressGestureRecognizer recognizer) {
  const UIGestureRecognizerState state = recognizer.state();
  if (state == UIGestureRecognizerStateBegan && !self.becomeFirstResponder()) return;
  if (!editing_) return;
  if (state == UIGestureRecognizerStateEnded) return show_menu();
  if (state != UIGestureRecognizerStateBegan && state != UIGestureRecognizerStateChanged) return;
  hide_edit_menu();
  put_caret(index_at(recognizer.locationInView(self)));
}

void TextField::selection_dragged(SelectionEnd end, CGPoint on_screen) {
  hide_edit_menu();
  const NSRange range = selection();
  const std::size_t last = range.location + range.length;
  const std::size_t index = index_at(from_screen(self, on_screen));
  // At least one character stays selected: the ends cannot pass each other.
  if (end == SelectionEnd::Start) {
    anchor_index_ = last;
    caret_index_ = std::min(index, last > 0 ? character_start(text_.get(), last - 1) : 0);
  } else {
    anchor_index_ = range.location;
    caret_index_ = std::max(index, character_end(text_.get(), range.location));
  }
  selection_changed();
}

void TextField::selection_drag_ended(NSUInteger taps) {
  // A grabber that appeared under the finger between taps must not swallow the third tap.
  if (taps >= 3) return select_all(nil);
  show_menu();
}

void TextField::show_menu() {
  self.layoutIfNeeded();
  const bool selects = selection().length > 0;
  const CGRect text = selects ? marks_.frame() : caret_.frame();
  // Clear of the grabbers' dots.
  const CGFloat room = selects ? kGrabberRoom : 0;
  const CGPoint corner = to_screen(self, {text.min_x(), text.min_y() - room});
  show_edit_menu(self, {corner, {text.size.width, text.size.height + 2 * room}});
}

BOOL TextField::can_perform_action(objc::Sel action, objc::Object) {
  const bool selects = selection().length > 0;
  if (action == "cut:"_sel || action == "copy:"_sel) return selects;
  if (action == "paste:"_sel) return UIPasteboard::generalPasteboard().string() ? YES : NO;
  if (action == "select:"_sel) return has_text() && !selects;
  if (action == "selectAll:"_sel) return selection().length < text_->length();
  return NO;
}

void TextField::cut(objc::Object) {
  if (selection().length == 0) return;
  const NSString taken = selected_text();
  if (!may_replace(selection(), ""_ns)) return;
  UIPasteboard::generalPasteboard().setString(taken);
  replace(selection(), ""_ns);
  text_edited();
}

void TextField::copy(objc::Object) {
  if (selection().length > 0) UIPasteboard::generalPasteboard().setString(selected_text());
}

void TextField::paste(objc::Object) {
  const NSString held = UIPasteboard::generalPasteboard().string();
  if (!held) return;
  // A field has one line: line breaks in pasted text become spaces.
  const NSString line = held.componentsSeparatedByString("\n"_ns).componentsJoinedByString(" "_ns);
  const NSRange range = typing_range();
  if (!may_replace(range, line)) return;
  replace(range, line);
  text_edited();
}

void TextField::select_word(objc::Object) {
  select(word_at(text_.get(), caret_index_));
  show_menu();
}

void TextField::select_all(objc::Object) {
  select({0, text_->length()});
  show_menu();
}

}  // namespace host::uikit
