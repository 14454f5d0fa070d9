#pragma once

#include <memory>

#include "host/media_player/shelf.h"
#include "objc/class_builder.h"
#include "platform/Foundation/NSValue.h"
#include "platform/MediaPlayer/MPMediaItem.h"

namespace host::media_player {

/// One song. It retains its library, so it stays valid after another library has replaced it.
class MediaItem : public objc::Implementation<MediaItem, MPMediaItem> {
 public:
  explicit MediaItem(MPMediaItem owner) : Implementation(owner) {}
  ~MediaItem();

  /// Returns a new item for a track of the shelf's library; the caller owns it.
  static MPMediaItem make(std::shared_ptr<Shelf> shelf, const media::Track& track);

  /// Null for an item that does not come from a library.
  const media::Track* track() const { return track_; }

  objc::Object value_for_property(NSString property);
  /// Items are equal when their songs are, whichever library they came from.
  BOOL is_equal(objc::Object other);
  NSUInteger hash();
  NSString description();

  NSString title();
  NSString artist();
  NSString album();
  NSNumber persistent_id();
  NSNumber album_persistent_id();
  NSNumber media_type();
  NSNumber duration();
  NSNumber is_cloud();
  objc::Object artwork();

 private:
  std::shared_ptr<Shelf> shelf_;
  const media::Track* track_ = nullptr;
  // Looked up on first use. Only the title and the number belong to this item, and so are retained.
  NSString title_;
  NSNumber persistent_id_;
  NSString artist_;
  NSString album_;
  NSNumber album_id_;
};

/// Sets the names of the properties and registers the class.
void export_media_item();

}  // namespace host::media_player
