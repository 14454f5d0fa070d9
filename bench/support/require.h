#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace bench {

/// Ends the program with the reason when the benchmark did not measure what it should.
inline void require(bool is_so, std::string_view what) {
  if (is_so) return;
  std::fprintf(stderr, "this benchmark measured nothing: %.*s\n", static_cast<int>(what.size()),
               what.data());
  std::exit(EXIT_FAILURE);
}

}  // namespace bench
