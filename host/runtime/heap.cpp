#include "host/runtime/heap.h"

#include <malloc.h>

namespace host {
namespace {

// Smaller ones come and go with frames, which have no time for the system.
constexpr int kLarge = 1 << 20;

}  // namespace

void give_large_blocks_back() {
  ::mallopt(M_MMAP_THRESHOLD, kLarge);
}

}  // namespace host
