#pragma once

#include <cstdint>
#include <initializer_list>
#include <random>
#include <span>
#include <string>

namespace random_use {

/// Random numbers that are the same for the same seed on every machine.
class RandomHand {
 public:
  explicit RandomHand(std::uint32_t seed) : engine_(seed) {}

  /// Returns a number from 0 to `end` - 1.
  std::size_t below(std::size_t end) { return engine_() % end; }
  int between(int first, int last) {
    return first + static_cast<int>(below(static_cast<std::size_t>(last - first + 1)));
  }
  bool once_in(std::size_t times) { return below(times) == 0; }
  template <class Choice>
  const Choice& of(std::span<const Choice> choices) {
    return choices[below(choices.size())];
  }
  template <class Choice, std::size_t Count>
  const Choice& of(const Choice (&choices)[Count]) {
    return choices[below(Count)];
  }

 private:
  std::mt19937 engine_;
};

}  // namespace random_use
