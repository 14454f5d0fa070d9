#include "host/uikit/text_layout/editable_text.h"

#include <algorithm>

#include "host/uikit/text_layout/characters.h"

namespace host::uikit {

void EditableText::set(NSString text) {
  text_ = text ? objc::Ref<NSString>::adopt(text.copy()) : objc::Ref<NSString>::retain(""_ns);
  caret_ = text_->length();
  marked_ = {};
}

NSRange EditableText::insertion_range() const {
  return marked_.length ? marked_ : NSRange{caret_, 0};
}

NSRange EditableText::backspace_range() const {
  if (marked_.length) return marked_;
  if (caret_ == 0) return {0, 0};
  const std::size_t start = character_start(text_.get(), caret_ - 1);
  return {start, caret_ - start};
}

void EditableText::replace(NSRange range, NSString text) {
  text_.reset(text_->stringByReplacingCharactersInRange(range, text));
  caret_ = range.location + text.length();
  marked_ = {};
}

void EditableText::compose(NSString text, NSRange selected) {
  const NSRange range = insertion_range();
  const NSString composed = text ? text : ""_ns;
  replace(range, composed);
  marked_ = {range.location, composed.length()};
  caret_ = range.location + std::min<std::size_t>(selected.location, composed.length());
}

bool EditableText::end_composing() {
  if (!marked_.length) return false;
  caret_ = marked_.location + marked_.length;
  marked_ = {};
  return true;
}

void EditableText::move_to(std::size_t index) {
  caret_ = character_start(text_.get(), std::min(index, length()));
  marked_ = {};
}

void EditableText::move_to_previous() {
  if (caret_ > 0) caret_ = character_start(text_.get(), caret_ - 1);
  marked_ = {};
}

void EditableText::move_to_next() {
  caret_ = character_end(text_.get(), caret_);
  marked_ = {};
}

StyledText EditableText::styled(const TextStyle& style) const {
  StyledText styled = styled_text(text_.get(), style);
  if (!marked_.length) return styled;
  TextStyle composed = style;
  composed.underline = true;
  const std::size_t begin = utf8_of(text_->substringToIndex(marked_.location)).size();
  const std::size_t end =
      utf8_of(text_->substringToIndex(marked_.location + marked_.length)).size();
  styled.runs = {{0, begin, style}, {begin, end, composed}, {end, styled.bytes.size(), style}};
  return styled;
}

}  // namespace host::uikit
