#pragma once

#include <cstdint>
#include <map>
#include <tuple>

#include "host/quartzcore/drawing/image.h"
#include "host/quartzcore/pixels/surface.h"

namespace host::quartzcore {

/// Caches scaled copies of images, so that each is scaled once per size and then only copied.
class ImageCache {
 public:
  enum class Pixels { AsTheyAre, Waited };

  /// The budget is in bytes of pixels.
  explicit ImageCache(long budget) : budget_(budget) {}

  /// Returns the image scaled to that size in pixels, or its own surface if it has that size. Null
  /// while its pixels are still being decoded, unless the caller waits for them.
  Surface scaled(const Image& image, int width, int height, Pixels pixels = Pixels::AsTheyAre);
  long bytes() const { return bytes_; }

 private:
  using Key = std::tuple<std::uint64_t, int, int>;
  struct Entry {
    Surface surface;
    std::uint64_t last_use;
  };

  void make_room();

  const long budget_;
  std::map<Key, Entry> entries_;
  std::uint64_t uses_ = 0;
  long bytes_ = 0;
};

}  // namespace host::quartzcore
