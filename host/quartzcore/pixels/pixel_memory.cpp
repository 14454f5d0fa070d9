#include "host/quartzcore/pixels/pixel_memory.h"

#include <sys/mman.h>

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

/// Returns the size in whole large pages; 0 if that would waste more than a fifth.
std::size_t in_large_pages(std::size_t size) {
  constexpr std::size_t kPage = PixelMemory::kLargePage;
  const std::size_t whole = (size + kPage - 1) / kPage * kPage;
  return (whole - size) * 5 <= whole ? whole : 0;
}

/// Maps memory that begins at a large page; null when out of memory.
unsigned char* map_large_pages(std::size_t size) {
  constexpr std::size_t kPage = PixelMemory::kLargePage;
  void* const mapped =
      mmap(nullptr, size + kPage, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (mapped == MAP_FAILED) return nullptr;
  auto* const bytes = static_cast<unsigned char*>(mapped);
  const std::size_t before = (kPage - reinterpret_cast<std::uintptr_t>(bytes) % kPage) % kPage;
  if (before) munmap(bytes, before);
  munmap(bytes + before + size, kPage - before);
  madvise(bytes + before, size, MADV_HUGEPAGE);
  return bytes + before;
}

}  // namespace

PixelMemory::~PixelMemory() {
  for (const Block& block : blocks_)
    release(block);
}

/// To be called with the lock held.
void PixelMemory::release(const Block& block) {
  if (mapped_.erase(block.bytes)) {
    munmap(block.bytes, block.size);
  } else {
    std::free(block.bytes);
  }
}

PixelMemory::Block PixelMemory::new_block(std::size_t size, Contents contents) {
  if (const std::size_t whole = in_large_pages(size)) {
    unsigned char* const bytes = map_large_pages(whole);
    if (!bytes) return {};
    const std::lock_guard lock(mutex_);
    mapped_.emplace(bytes, whole);
    return {bytes, whole};
  }
  void* made = contents == Contents::Zeros ? std::calloc(size, 1) : std::malloc(size);
  return {static_cast<unsigned char*>(made), made ? size : 0};
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
  // Those who give it back may only know how much they asked for.
  if (const auto mapped = mapped_.find(block.bytes); mapped != mapped_.end())
    block.size = mapped->second;
  blocks_.push_front(block);
  kept_ += block.size;
  while (kept_ > kMostKept) {
    release(blocks_.back());
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
