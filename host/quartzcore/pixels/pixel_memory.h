#pragma once

#include <cstddef>
#include <deque>
#include <mutex>
#include <new>

namespace host::quartzcore {

/// Memory for the pixels of large surfaces. The memory of a released surface is kept for the next
/// one of about the same size, because new pages from the system cost more than painting them.
/// Thread-safe.
class PixelMemory {
 public:
  enum class Contents { Anything, Zeros };
  struct Block {
    unsigned char* bytes = nullptr;
    std::size_t size = 0;
  };

  /// In bytes: a few screens. An animation reuses the memory that the previous one released.
  static constexpr std::size_t kMostKept = 12U << 20;
  /// In bytes. Smaller blocks come from pages that the process already has.
  static constexpr std::size_t kLeastKept = 128U << 10;

  PixelMemory() = default;
  ~PixelMemory();
  PixelMemory(const PixelMemory&) = delete;
  PixelMemory& operator=(const PixelMemory&) = delete;

  /// Returns a block of at least `size` bytes; a null block when out of memory.
  Block take(std::size_t size, Contents contents);
  void give_back(Block block);
  std::size_t kept() const;

 private:
  Block kept_block(std::size_t size);

  mutable std::mutex mutex_;
  std::deque<Block> blocks_;  // The latest returned first.
  std::size_t kept_ = 0;
};

/// The only instance in this process.
PixelMemory& pixel_memory();

/// For vectors of pixels that are created for each frame.
template <class T>
struct PixelAllocator {
  using value_type = T;

  T* allocate(std::size_t count) {
    const auto block = pixel_memory().take(count * sizeof(T), PixelMemory::Contents::Anything);
    if (!block.bytes) throw std::bad_alloc();
    return reinterpret_cast<T*>(block.bytes);
  }
  void deallocate(T* values, std::size_t count) {
    pixel_memory().give_back({reinterpret_cast<unsigned char*>(values), count * sizeof(T)});
  }
  friend bool operator==(const PixelAllocator&, const PixelAllocator&) { return true; }
};

}  // namespace host::quartzcore
