#include "host/media_player/artwork_images.h"

#include "host/media_player/promised_cover.h"
#include "host/quartzcore/drawing/image.h"

namespace host::media_player {

UIImage ArtworkImages::image(const media::Track& track, int longest_side, double scale) {
  const Entry* known = entry(track, longest_side, scale);
  return known ? known->image.get() : UIImage();
}

UIImage ArtworkImages::shown_image(const media::Track& track, int longest_side, double scale) {
  const Entry* known = entry(track, longest_side, scale);
  if (!known) return nil;
  store_->pin(*known->cover);
  if (store_->pace() == CoverStore::Pace::NeverWaits && !store_->keeps(*known->cover)) {
    known->cover->prefetch();
  }
  return known->image.get();
}

const ArtworkImages::Entry* ArtworkImages::entry(const media::Track& track, int longest_side,
                                                 double scale) {
  const bool has_cover = track.has_artwork() && !store_->is_broken(track.artwork_key);
  if (!has_cover || longest_side <= 0) return nullptr;
  const Key key{track.artwork_key, longest_side, scale};
  const auto known = by_key_.find(key);
  if (known == by_key_.end()) return &make(track, key);
  entries_.splice(entries_.begin(), entries_, known->second);
  return &*known->second;
}

const ArtworkImages::Entry& ArtworkImages::make(const media::Track& track, const Key& key) {
  using quartzcore::Opacity;
  const auto [width, height, is_opaque] = track.artwork;
  const media::PictureSize size = media::fitted_size(width, height, key.longest_side);
  auto cover =
      std::make_shared<PromisedCover>(store_, media::cover_of(track), key.longest_side, size,
                                      is_opaque ? Opacity::Opaque : Opacity::Translucent);
  const CGImageRef pixels =
      quartzcore::promise_image(size.width, size.height, cover, quartzcore::ByteOrder::RedFirst);
  auto image = objc::Ref<UIImage>::adopt(
      UIImage::alloc().initWithCGImage(pixels, key.scale, UIImageOrientationUp));
  CGImageRelease(pixels);
  entries_.push_front({key, std::move(image), std::move(cover)});
  by_key_[key] = entries_.begin();
  make_room();
  return entries_.front();
}

void ArtworkImages::make_room() {
  while (entries_.size() > kMostImages) {
    by_key_.erase(entries_.back().key);
    // A caller may have been given it during this turn.
    entries_.back().image.leak().autorelease();
    entries_.pop_back();
  }
}

}  // namespace host::media_player
