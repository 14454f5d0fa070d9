#pragma once

#include "host/uikit/text_layout/styled_text.h"
#include "objc/ref.h"

namespace host::uikit {

/// Text with a caret: applies typing and deleting, without a view. Positions count UTF-16 units and
/// lie between whole characters. The stretch that an input method is still composing is marked; the
/// next typed text replaces it.
class EditableText {
 public:
  EditableText() : text_(objc::Ref<NSString>::retain(""_ns)) {}

  NSString text() const { return text_.get(); }
  std::size_t length() const { return text_->length(); }
  std::size_t caret() const { return caret_; }
  NSRange marked() const { return marked_; }

  /// Replaces the text and puts the caret at its end; nil means empty.
  void set(NSString text);
  /// Where the next typed text goes.
  NSRange insertion_range() const;
  /// What the next backspace deletes: a whole character, or the composed text.
  NSRange backspace_range() const;
  /// Moves the caret behind the inserted text.
  void replace(NSRange range, NSString text);
  /// Replaces the composed text; `selected` is the caret within it.
  void compose(NSString text, NSRange selected);
  /// Keeps the composed text as it is. Returns false when there was none.
  bool end_composing();

  /// Moves to the nearest position between whole characters, at or before `index`.
  void move_to(std::size_t index);
  void move_to_previous();
  void move_to_next();

  /// Returns the text in one style, with the composed text underlined.
  StyledText styled(const TextStyle& style) const;

 private:
  objc::Ref<NSString> text_;
  std::size_t caret_ = 0;
  NSRange marked_;
};

}  // namespace host::uikit
