#pragma once

#include <cstdint>
#include <map>
#include <tuple>

#include "host/quartzcore/image.h"
#include "host/quartzcore/surface.h"

namespace host::quartzcore {

/// Scaled copies of images, so that each is scaled once for a place and then only copied.
class ImageCache {
 public:
  /// Enough for several screens of artwork and all icons.
  static constexpr long kBudget = 64L << 20;

  /// The image at that size in pixels; its own surface when that is its size.
  Surface scaled(const Image& image, int width, int height);
  long bytes() const { return bytes_; }

 private:
  using Key = std::tuple<std::uint64_t, int, int>;
  struct Entry {
    Surface surface;
    std::uint64_t last_use;
  };

  void make_room();

  std::map<Key, Entry> entries_;
  std::uint64_t uses_ = 0;
  long bytes_ = 0;
};

}  // namespace host::quartzcore
