#pragma once

#include <vector>

#include "tests/random_use/oracle.h"

namespace random_use {

/// A fault, and lines that lead to it on a new phone, the expectations that fail included.
struct Story {
  Fault fault;
  std::vector<std::string> lines;
};

/// Replays the lines on a new phone and judges it. Returns the story of a fault of the same kind;
/// nothing when there is no such fault.
std::optional<Story> replayed(const std::vector<std::string>& lines, const std::string& kind,
                              bool is_drawn);

struct ShrinkingOptions {
  bool is_drawn = false;
  double seconds = 0;  // real time, at most
};

/// Removes the lines that the fault does not need: first all but the last bursts, then single
/// lines. `bursts` are the indexes of the bursts' first lines.
Story shrunk(Story story, const std::vector<std::size_t>& bursts, ShrinkingOptions options);

}  // namespace random_use
