#pragma once

#include <cstddef>
#include <memory>
#include <optional>

#include "host/basics/descriptor.h"

namespace host::application {

/// The size of one buffer in pixels, and `stride` in bytes.
struct SurfaceSize {
  int width = 0;
  int height = 0;
  int stride = 0;

  bool is_sound() const {
    constexpr int kLargestSide = 16384;
    return width > 0 && height > 0 && width <= kLargestSide && height <= kLargestSide &&
           stride >= width * 4 && stride <= kLargestSide * 4 && stride % 4 == 0;
  }
  std::size_t buffer_bytes() const {
    return static_cast<std::size_t>(stride) * static_cast<std::size_t>(height);
  }
};

/// Two pixel buffers in memory that the home screen and an application share: one is on the screen
/// while the application draws into the other. The home screen allocates the memory, so it alone
/// decides the size, and seals it: shrinking the memory would make its reader fault.
class SharedSurface {
 public:
  static constexpr int kBuffers = 2;

  /// The home screen's end, which only reads. Null when out of memory.
  static std::shared_ptr<const SharedSurface> make(const SurfaceSize& size);
  /// The application's end, which also writes. Null when the memory has the wrong size, or its size
  /// is not sealed.
  static std::shared_ptr<SharedSurface> open(Descriptor memory, const SurfaceSize& size);

  ~SharedSurface();
  SharedSurface(const SharedSurface&) = delete;
  SharedSurface& operator=(const SharedSurface&) = delete;

  const SurfaceSize& size() const { return size_; }
  int descriptor() const { return memory_.get(); }
  const unsigned char* buffer(int index) const {
    return pixels_ + size_.buffer_bytes() * static_cast<std::size_t>(index);
  }
  unsigned char* writable_buffer(int index) {
    return pixels_ + size_.buffer_bytes() * static_cast<std::size_t>(index);
  }

 private:
  SharedSurface(Descriptor memory, const SurfaceSize& size, unsigned char* pixels)
      : memory_(std::move(memory)), size_(size), pixels_(pixels) {}

  Descriptor memory_;
  SurfaceSize size_;
  unsigned char* pixels_;
};

}  // namespace host::application
