#pragma once

#include <memory>

#include "host/media_player/shelf.h"
#include "objc/class_builder.h"
#include "platform/Foundation/NSValue.h"
#include "platform/MediaPlayer/MPMediaItem.h"

namespace host::media_player {

/// One song. It keeps its library, so it goes on answering after another has taken the place.
class MediaItem : public objc::Implementation<MediaItem, MPMediaItem> {
 public:
  explicit MediaItem(MPMediaItem owner) : Implementation(owner) {}
  ~MediaItem();

  /// A new item (+1) for a track of the shelf's library.
  static MPMediaItem make(std::shared_ptr<Shelf> shelf, const media::Track& track);

  /// Null for an item that nobody got from a library.
  const media::Track* track() const { return track_; }

  objc::Object value_for_property(NSString property);
  /// Items are the same when their songs are, whichever library they came from.
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
  // Found when they are first asked for. Only the title and the number are this item's own, and so
  // are retained.
  NSString title_;
  NSNumber persistent_id_;
  NSString artist_;
  NSString album_;
  NSNumber album_id_;
};

/// Gives the names of the properties their values and makes the class.
void export_media_item();

}  // namespace host::media_player
