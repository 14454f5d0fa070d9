#pragma once

#include <string>

namespace host::test {

/// While it exists, the arrays of one loaded library can allocate memory only a few times.
class ShortMemory {
 public:
  /// `library` is the end of the library's path; `times` is how many of its requests succeed.
  ShortMemory(std::string library, int times);
  ~ShortMemory();
  ShortMemory(const ShortMemory&) = delete;
  ShortMemory& operator=(const ShortMemory&) = delete;

  /// How many requests were refused.
  int refused() const;
};

}  // namespace host::test
