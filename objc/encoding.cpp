#include "objc/encoding.h"

namespace objc {
namespace {

constexpr bool is_one_of(char c, const char* set) {
  for (; *set; ++set) {
    if (*set == c) return true;
  }
  return false;
}

/// Walks an encoding one significant letter at a time.
class Letters {
 public:
  explicit Letters(const char* text) : at_(text) {}

  /// The next letter that matters to a call, or 0 at the end.
  char next() {
    skip_insignificant();
    const char letter = *at_;
    if (letter == 0) return 0;
    ++at_;
    switch (letter) {
      case 'C':
      case 'B':
        return 'c';
      case 'l':
        return 'q';
      case 'L':
        return 'Q';
      case '*':
        return '^';
      case '^':
        skip_type();
        return '^';
      case '{':
        skip_structure_name();
        return '{';
      case '@':
        skip_object_detail();
        return '@';
      default:
        return letter;
    }
  }

 private:
  void skip_insignificant() {
    while (*at_ && is_one_of(*at_, "0123456789+-rnNoORV"))
      ++at_;
  }

  void skip_structure_name() {
    const char* end = at_;
    while (*end && *end != '=' && *end != '}')
      ++end;
    at_ = *end == '=' ? end + 1 : end;
  }

  void skip_object_detail() {
    if (*at_ == '?') {
      ++at_;
    } else if (*at_ == '"') {
      ++at_;
      while (*at_ && *at_ != '"')
        ++at_;
      if (*at_) ++at_;
    }
  }

  // Skips the type that a pointer points to: one letter, or a whole bracketed type.
  void skip_type() {
    skip_insignificant();
    int depth = 0;
    do {
      if (is_one_of(*at_, "{([")) ++depth;
      if (is_one_of(*at_, "})]")) --depth;
      const bool another_pointer = depth == 0 && *at_ == '^';
      if (*at_) ++at_;
      if (!another_pointer && depth == 0) return;
    } while (*at_);
  }

  const char* at_;
};

}  // namespace

bool same_encoding(const char* left, const char* right) {
  Letters a(left);
  Letters b(right);
  for (;;) {
    const char from_left = a.next();
    const char from_right = b.next();
    if (from_left != from_right) return false;
    if (from_left == 0) return true;
  }
}

}  // namespace objc
