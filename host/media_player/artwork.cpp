#include "host/media_player/artwork.h"

#include <algorithm>
#include <cmath>

#include "host/media_player/media_service.h"
#include "host/runtime/device_model.h"

namespace host::media_player {
namespace {

// No screen shows anything larger, and a requested size may be the result of a wrong computation.
constexpr double kLongestSide = 4096;

}  // namespace

MPMediaItemArtwork Artwork::make(std::shared_ptr<Shelf> shelf, const media::Track& track) {
  const MPMediaItemArtwork artwork = MPMediaItemArtwork::alloc().init();
  auto& state = objc::state_of<Artwork>(artwork);
  state.shelf_ = std::move(shelf);
  state.track_ = &track;
  return artwork;
}

UIImage Artwork::image_with_size(CGSize size) {
  MediaService* service = MediaService::current();
  const double scale = current_device().scale;
  const double side = std::ceil(std::max(size.width, size.height) * scale);
  if (!service || !track_ || !(side > 0)) return nil;
  return service->artwork().image(*track_, static_cast<int>(std::min(side, kLongestSide)), scale);
}

void export_artwork() {
  if (objc_getClass("MPMediaItemArtwork")) return;
  objc::ClassBuilder("MPMediaItemArtwork", "NSObject")
      .state<Artwork>()
      .method<&Artwork::image_with_size>("imageWithSize:")
      .finish();
}

}  // namespace host::media_player
