#pragma once

#include <vector>

#include "tests/random_use/oracle.h"

namespace random_use {

/// A fault, and lines that lead to it on a new phone, the expectations that fail included.
struct Story {
  Fault fault;
  std::vector<std::string> lines;
};

/// Plays the lines on a new phone and has it judged: the story of the fault with the same kind;
/// nothing when there is no such fault.
std::optional<Story> replayed(const std::vector<std::string>& lines, const std::string& kind,
                              bool is_drawn);

struct ShrinkingOptions {
  bool is_drawn = false;
  double seconds = 0;  // at most
};

/// Leaves out of the lines what the fault does not need: first all but the last bursts, whose
/// beginnings are given, then line by line.
Story shrunk(Story story, const std::vector<std::size_t>& bursts, ShrinkingOptions options);

}  // namespace random_use
