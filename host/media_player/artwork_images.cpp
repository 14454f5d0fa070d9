#include "host/media_player/artwork_images.h"

#include <algorithm>
#include <utility>

#include "host/quartzcore/image.h"

namespace host::media_player {
namespace {

using PicturePtr = std::shared_ptr<const media::Picture>;

// The surface shares the picture's pixels and keeps them alive.
quartzcore::Surface surface_of(const PicturePtr& picture) {
  static const cairo_user_data_key_t owner{};
  // Cairo has no surface that promises not to be drawn on; an image is never drawn on.
  auto* pixels =
      reinterpret_cast<unsigned char*>(const_cast<std::uint32_t*>(picture->pixels.data()));
  auto surface = quartzcore::Surface::adopt(cairo_image_surface_create_for_data(
      pixels, CAIRO_FORMAT_ARGB32, picture->width, picture->height, picture->width * 4));
  cairo_surface_set_user_data(surface.get(), &owner, new PicturePtr(picture),
                              [](void* kept) { delete static_cast<PicturePtr*>(kept); });
  return surface;
}

quartzcore::Opacity opacity_of(const media::Picture& picture) {
  const bool is_opaque =
      std::ranges::all_of(picture.pixels, [](std::uint32_t pixel) { return pixel >> 24 == 0xff; });
  return is_opaque ? quartzcore::Opacity::Opaque : quartzcore::Opacity::Translucent;
}

// +1
UIImage image_of(const PicturePtr& picture, double scale) {
  const CGImageRef pixels = quartzcore::make_image(surface_of(picture), opacity_of(*picture),
                                                   quartzcore::ByteOrder::RedFirst);
  const UIImage image = UIImage::alloc().initWithCGImage(pixels, scale, UIImageOrientationUp);
  CGImageRelease(pixels);
  return image;
}

}  // namespace

UIImage ArtworkImages::image(const media::Track& track, int longest_side, double scale) {
  if (!track.has_artwork() || longest_side <= 0) return nil;
  const Key key{track.artwork_key, longest_side, scale};
  if (const auto known = by_key_.find(key); known != by_key_.end()) {
    entries_.splice(entries_.begin(), entries_, known->second);
    return known->second->image.get();
  }
  const PicturePtr picture = decoder_.picture(track, longest_side);
  if (!picture) return nil;
  const UIImage image = image_of(picture, scale).autorelease();
  keep({key, objc::Ref<UIImage>::retain(image), picture->byte_count()});
  return image;
}

void ArtworkImages::keep(Entry entry) {
  bytes_kept_ += entry.bytes;
  const Key key = entry.key;
  entries_.push_front(std::move(entry));
  by_key_[key] = entries_.begin();
  while (bytes_kept_ > kMostBytes && !entries_.empty()) {
    bytes_kept_ -= entries_.back().bytes;
    by_key_.erase(entries_.back().key);
    // Somebody may have been given it in this turn.
    entries_.back().image.leak().autorelease();
    entries_.pop_back();
  }
}

}  // namespace host::media_player
