#pragma once

#include <string>

namespace host::test {

/// While it lives, the arrays of one loaded library get more memory a few times only.
class ShortMemory {
 public:
  /// `library` is the end of its path; `times` is how often its requests are met.
  ShortMemory(std::string library, int times);
  ~ShortMemory();
  ShortMemory(const ShortMemory&) = delete;
  ShortMemory& operator=(const ShortMemory&) = delete;

  /// How many requests were refused.
  int refused() const;
};

}  // namespace host::test
