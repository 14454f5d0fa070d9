#pragma once

#include <cstdint>
#include <span>

namespace random_use {

/// Console lines with words in angle brackets, each a placeholder for a random item of that kind.
struct Pattern {
  int weight;
  const char* lines;
};

/// The beginning of a burst: brings up the place where it happens.
std::span<const Pattern> beginnings();
/// The actions of a burst, performed one after the other.
std::span<const Pattern> actions();
/// Events that occur while a finger is down.
std::span<const Pattern> interruptions();

}  // namespace random_use
