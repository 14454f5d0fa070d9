#include "host/media_player/promised_cover.h"

#include <utility>

#include "host/media_player/cover_store.h"
#include "host/quartzcore/layers/layer_changes.h"
#include "host/quartzcore/pixels/scaled_copy.h"

namespace host::media_player {
namespace {

using PicturePtr = std::shared_ptr<const media::Picture>;

// The surface shares the picture's pixels and keeps them alive.
quartzcore::Surface shared_surface(const PicturePtr& picture) {
  static const cairo_user_data_key_t owner{};
  // Cairo has no read-only surfaces; an image's surface is never drawn on.
  auto* pixels =
      reinterpret_cast<unsigned char*>(const_cast<std::uint32_t*>(picture->pixels.data()));
  auto surface = quartzcore::Surface::adopt(cairo_image_surface_create_for_data(
      pixels, CAIRO_FORMAT_ARGB32, picture->width, picture->height, picture->width * 4));
  cairo_surface_set_user_data(surface.get(), &owner, new PicturePtr(picture),
                              [](void* kept) { delete static_cast<PicturePtr*>(kept); });
  return surface;
}

}  // namespace

PromisedCover::PromisedCover(std::shared_ptr<CoverStore> store, media::CoverFile cover,
                             int longest_side, media::PictureSize size, quartzcore::Opacity opacity)
    : store_(std::move(store)),
      cover_(std::move(cover)),
      longest_side_(longest_side),
      size_(size),
      opacity_(opacity) {}

quartzcore::Surface PromisedCover::pixels() {
  return surface_of(store_->picture_now(*this));
}

quartzcore::Surface PromisedCover::pixels_for_frame() {
  const bool was_broken = store_->is_broken(cover_.key);
  if (store_->pace() == CoverStore::Pace::NeverWaits && !was_broken) {
    const PicturePtr kept = store_->picture_if_kept(*this);
    if (!kept) prefetch();
    return surface_of(kept);
  }
  const PicturePtr picture = store_->picture_now(*this);
  // What the frame skipped behind the picture must be drawn after all.
  if (!picture && !was_broken) arrived();
  return surface_of(picture);
}

bool PromisedCover::is_awaited() const {
  return store_->pace() == CoverStore::Pace::NeverWaits && !store_->is_broken(cover_.key) &&
         !store_->keeps(*this);
}

quartzcore::Opacity PromisedCover::opacity() const {
  const bool has_pixels = !is_awaited() && !store_->is_broken(cover_.key);
  return has_pixels ? opacity_ : quartzcore::Opacity::Translucent;
}

void PromisedCover::prefetch() {
  if (!std::exchange(is_on_its_way_, true)) store_->request(shared_from_this());
}

void PromisedCover::arrived() {
  is_on_its_way_ = false;
  ++revision_;
  quartzcore::note_layer_change();
}

// A file replaced since the last scan may have another aspect ratio than was promised.
quartzcore::Surface PromisedCover::surface_of(const PicturePtr& picture) const {
  if (!picture) return {};
  const quartzcore::Surface surface = shared_surface(picture);
  const bool has_promised_size = picture->width == size_.width && picture->height == size_.height;
  return has_promised_size ? surface : scaled_copy(surface, size_.width, size_.height);
}

}  // namespace host::media_player
