#include "host/runtime/heap.h"

#include <malloc.h>

namespace host {
namespace {

constexpr int kLarge = 128 * 1024;

}  // namespace

void give_large_blocks_back() {
  ::mallopt(M_MMAP_THRESHOLD, kLarge);
}

}  // namespace host
