#pragma once

#include <cstddef>
#include <memory>
#include <optional>

#include "host/basics/descriptor.h"

namespace host::application {

/// Of one buffer, in pixels; `stride` in bytes.
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

/// Two buffers of pixels in memory that the home screen and an application share: while one is on
/// the screen, the other is drawn on. The home screen makes the memory, so that its size is nobody
/// else's to say, and seals it: who could make it shorter could make its reader fault.
class SharedSurface {
 public:
  static constexpr int kBuffers = 2;

  /// The home screen's end, which only reads. Nothing when there is no memory.
  static std::shared_ptr<const SharedSurface> make(const SurfaceSize& size);
  /// The application's end, which also writes. Nothing when the memory is not as large as it
  /// should be, or its size can still change.
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
