#pragma once

#include <cstddef>
#include <deque>
#include <mutex>

namespace host::quartzcore {

/// Memory for the pixels of large surfaces. That of a surface that has gone is kept for the next
/// one of about its size, since new pages of the system's cost more than painting them. For any
/// thread.
class PixelMemory {
 public:
  enum class Contents { Anything, Zeros };
  struct Block {
    unsigned char* bytes = nullptr;
    std::size_t size = 0;
  };

  /// A few screens: what an animation lets go of the next one finds.
  static constexpr std::size_t kMostKept = 12U << 20;

  PixelMemory() = default;
  ~PixelMemory();
  PixelMemory(const PixelMemory&) = delete;
  PixelMemory& operator=(const PixelMemory&) = delete;

  /// At least `size` bytes; null ones when there is no memory.
  Block take(std::size_t size, Contents contents);
  void give_back(Block block);
  std::size_t kept() const;

 private:
  Block kept_block(std::size_t size);

  mutable std::mutex mutex_;
  std::deque<Block> blocks_;  // Those given back last are first.
  std::size_t kept_ = 0;
};

/// The one of this process.
PixelMemory& pixel_memory();

}  // namespace host::quartzcore
