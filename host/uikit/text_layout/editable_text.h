#pragma once

#include "host/uikit/text_layout/styled_text.h"
#include "objc/ref.h"

namespace host::uikit {

/// Text under a caret: what typing and deleting make of it, without a view. Places are counted in
/// UTF-16 units and stand between whole characters. A stretch that an input method is still
/// composing is marked; whatever is typed next takes its place.
class EditableText {
 public:
  EditableText() : text_(objc::Ref<NSString>::retain(""_ns)) {}

  NSString text() const { return text_.get(); }
  std::size_t length() const { return text_->length(); }
  std::size_t caret() const { return caret_; }
  NSRange marked() const { return marked_; }

  /// Other text, the caret behind it; nil means none.
  void set(NSString text);
  /// Where the next typed text goes.
  NSRange insertion_range() const;
  /// What the next press of backspace takes away: a whole character, or what is being composed.
  NSRange backspace_range() const;
  /// The caret goes behind what was put in.
  void replace(NSRange range, NSString text);
  /// `selected` is the caret within the composed text.
  void compose(NSString text, NSRange selected);
  /// What was composed stays. False when nothing was.
  bool end_composing();

  /// To the nearest place between whole characters, at or before `index`.
  void move_to(std::size_t index);
  void move_to_previous();
  void move_to_next();

  /// The text in one style, with what is being composed underlined.
  StyledText styled(const TextStyle& style) const;

 private:
  objc::Ref<NSString> text_;
  std::size_t caret_ = 0;
  NSRange marked_;
};

}  // namespace host::uikit
