// A library that crashes every process that loads it.

#include <cstdlib>

namespace {

[[gnu::constructor]] void load() {
  std::abort();
}

}  // namespace
