#include "host/quartzcore/pixels/pixel_memory.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace host::quartzcore {
namespace {

/// A block more than twice as large as needed does not fit: it is left for a larger surface.
bool fits(const PixelMemory::Block& block, std::size_t size) {
  return block.size >= size && block.size / 2 <= size;
}

/// Makes a new block, null when out of memory. All its pages are requested at once, which takes
/// half of the time that touching one after the other does.
PixelMemory::Block new_block(std::size_t size, PixelMemory::Contents contents) {
  const bool is_zeroed = contents == PixelMemory::Contents::Zeros;
  auto* const bytes =
      static_cast<unsigned char*>(is_zeroed ? std::calloc(size, 1) : std::malloc(size));
  if (!bytes) return {};
  if (size < PixelMemory::kLeastKept) return {bytes, size};
  static const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
  const std::size_t before = -reinterpret_cast<std::uintptr_t>(bytes) % page;
  // Older kernels do not know the advice, which changes nothing but the time.
  madvise(bytes + before, (size - before) / page * page, MADV_POPULATE_WRITE);
  return {bytes, size};
}

}  // namespace

PixelMemory::~PixelMemory() {
  for (const Block& block : blocks_)
    std::free(block.bytes);
}

PixelMemory::Block PixelMemory::kept_block(std::size_t size) {
  const std::lock_guard lock(mutex_);
  const auto found = std::find_if(blocks_.begin(), blocks_.end(),
                                  [size](const Block& block) { return fits(block, size); });
  if (found == blocks_.end()) return {};
  const Block block = *found;
  blocks_.erase(found);
  kept_ -= block.size;
  return block;
}

PixelMemory::Block PixelMemory::take(std::size_t size, Contents contents) {
  const Block block = kept_block(size);
  if (!block.bytes) return new_block(size, contents);
  if (contents == Contents::Zeros) std::memset(block.bytes, 0, size);
  return block;
}

void PixelMemory::give_back(Block block) {
  if (block.size < kLeastKept) return std::free(block.bytes);
  const std::lock_guard lock(mutex_);
  blocks_.push_front(block);
  kept_ += block.size;
  while (kept_ > kMostKept) {
    std::free(blocks_.back().bytes);
    kept_ -= blocks_.back().size;
    blocks_.pop_back();
  }
}

std::size_t PixelMemory::kept() const {
  const std::lock_guard lock(mutex_);
  return kept_;
}

PixelMemory& pixel_memory() {
  // Never destroyed: surfaces may outlive any static object.
  static auto* const memory = new PixelMemory;
  return *memory;
}

}  // namespace host::quartzcore
