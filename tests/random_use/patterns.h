#pragma once

#include <cstdint>
#include <span>

namespace random_use {

/// Lines of the console with words in angle brackets that stand for something of their kind.
struct Pattern {
  int weight;
  const char* lines;
};

/// How a burst begins: where things happen.
std::span<const Pattern> beginnings();
/// What is done then, one after the other.
std::span<const Pattern> actions();
/// What comes while a finger is down.
std::span<const Pattern> interruptions();

}  // namespace random_use
