#include "host/runtime/heap.h"

#include <malloc.h>

namespace host {
namespace {

// In bytes. Smaller blocks are allocated and freed within frames, where system calls take too long.
constexpr int kLarge = 1 << 20;

}  // namespace

void give_large_blocks_back() {
  ::mallopt(M_MMAP_THRESHOLD, kLarge);
}

}  // namespace host
