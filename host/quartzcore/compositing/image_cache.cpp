#include "host/quartzcore/compositing/image_cache.h"

#include <algorithm>

#include "host/quartzcore/pixels/scaled_copy.h"

namespace host::quartzcore {
namespace {

long size_of(const Surface& surface) {
  return 4L * width_of(surface) * height_of(surface);
}

}  // namespace

Surface ImageCache::scaled(const Image& image, int width, int height, Pixels pixels) {
  const auto source = [&] {
    return pixels == Pixels::Waited ? image.surface() : image.surface_for_frame();
  };
  if (image.width() == width && image.height() == height) return source();
  const Key key{image.serial(), width, height};
  const auto found = entries_.find(key);
  if (found != entries_.end()) {
    found->second.last_use = ++uses_;
    return found->second.surface;
  }
  const Surface whole = source();
  if (!whole) return {};
  const Surface made = scaled_copy(whole, width, height);
  entries_.emplace(key, Entry{made, ++uses_});
  bytes_ += size_of(made);
  make_room();
  return made;
}

void ImageCache::make_room() {
  while (bytes_ > budget_ && entries_.size() > 1) {
    const auto oldest = std::min_element(
        entries_.begin(), entries_.end(),
        [](const auto& a, const auto& b) { return a.second.last_use < b.second.last_use; });
    bytes_ -= size_of(oldest->second.surface);
    entries_.erase(oldest);
  }
}

}  // namespace host::quartzcore
