#pragma once

#include <fmt/format.h>

#include <algorithm>
#include <string_view>

#include "host/property_list/builder.h"

namespace host::property_list {

/// A place in the text that is being read.
class Cursor {
 public:
  Cursor(std::string_view text, Builder& builder) : text_(text), builder_(&builder) {}

  bool is_at_end() const { return at_ == text_.size(); }
  /// The next character; 0 at the end, since a list contains none.
  char next() const { return is_at_end() ? '\0' : text_[at_]; }
  std::string_view rest() const { return text_.substr(at_); }
  void skip(std::size_t count = 1) { at_ += std::min(count, text_.size() - at_); }

  bool take(char expected) {
    if (next() != expected || is_at_end()) return false;
    ++at_;
    return true;
  }
  bool take(std::string_view expected) {
    if (!rest().starts_with(expected)) return false;
    at_ += expected.size();
    return true;
  }
  /// The text before `mark`, behind which it moves. Without the mark the rest, and false.
  bool take_until(std::string_view mark, std::string_view& before) {
    const auto end = text_.find(mark, at_);
    before = text_.substr(at_, end == text_.npos ? end : end - at_);
    at_ = end == text_.npos ? text_.size() : end + mark.size();
    return end != text_.npos;
  }
  bool skip_past(std::string_view mark) {
    std::string_view ignored;
    return take_until(mark, ignored);
  }
  template <class Matches>
  std::string_view take_while(Matches matches) {
    const auto begin = at_;
    while (at_ < text_.size() && matches(text_[at_]))
      ++at_;
    return text_.substr(begin, at_ - begin);
  }
  void skip_spaces() {
    take_while([](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); });
  }

  /// Reports what is wrong here. Returns nil.
  objc::Object damaged(std::string_view what) {
    const auto line =
        1 + std::count(text_.begin(), text_.begin() + static_cast<std::ptrdiff_t>(at_), '\n');
    return builder_->damaged(fmt::format("it is damaged in line {}: {}", line, what));
  }

 private:
  std::string_view text_;
  std::size_t at_ = 0;
  Builder* builder_;
};

}  // namespace host::property_list
