#pragma once

#include <memory>

#include "host/media_player/shelf.h"
#include "objc/class_builder.h"
#include "platform/MediaPlayer/MPMediaItem.h"

namespace host::media_player {

/// The cover of one song, decoded only when an image of it is requested.
class Artwork : public objc::Implementation<Artwork, MPMediaItemArtwork> {
 public:
  explicit Artwork(MPMediaItemArtwork owner) : Implementation(owner) {}

  /// Returns a new object for a track of the shelf's library; the caller owns it.
  static MPMediaItemArtwork make(std::shared_ptr<Shelf> shelf, const media::Track& track);

  UIImage image_with_size(CGSize size);

 private:
  std::shared_ptr<Shelf> shelf_;
  const media::Track* track_ = nullptr;
};

void export_artwork();

}  // namespace host::media_player
