#pragma once

#include <cstddef>

namespace objc {

/// A string literal that can be a template argument. `size` excludes the terminating zero.
template <std::size_t Size>
struct FixedString {
  char text[Size + 1] = {};

  constexpr FixedString() = default;
  constexpr FixedString(const char (&literal)[Size + 1]) {
    for (std::size_t i = 0; i <= Size; ++i)
      text[i] = literal[i];
  }

  static constexpr std::size_t size() { return Size; }
  constexpr const char* c_str() const { return text; }
};

template <std::size_t SizeWithZero>
FixedString(const char (&)[SizeWithZero]) -> FixedString<SizeWithZero - 1>;

template <std::size_t Left, std::size_t Right>
constexpr FixedString<Left + Right> operator+(const FixedString<Left>& left,
                                              const FixedString<Right>& right) {
  FixedString<Left + Right> joined;
  for (std::size_t i = 0; i < Left; ++i)
    joined.text[i] = left.text[i];
  for (std::size_t i = 0; i <= Right; ++i)
    joined.text[Left + i] = right.text[i];
  return joined;
}

}  // namespace objc
