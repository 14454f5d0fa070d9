#include "host/media_player/media_item.h"

#include <fmt/format.h>

#include "host/media_player/artwork.h"

// Loaded libraries bind to these in the executable.
#pragma GCC visibility push(default)
extern "C" {
NSString MPMediaItemPropertyPersistentID;
NSString MPMediaItemPropertyAlbumPersistentID;
NSString MPMediaItemPropertyMediaType;
NSString MPMediaItemPropertyTitle;
NSString MPMediaItemPropertyAlbumTitle;
NSString MPMediaItemPropertyArtist;
NSString MPMediaItemPropertyPlaybackDuration;
NSString MPMediaItemPropertyArtwork;
NSString MPMediaItemPropertyIsCloudItem;
}
#pragma GCC visibility pop

namespace host::media_player {
namespace {

template <auto Getter>
objc::Object value(MediaItem& item) {
  return (item.*Getter)();
}

struct Property {
  NSString* name;
  const char* text;
  objc::Object (*value)(MediaItem&);
};

constexpr Property kProperties[] = {
    {&MPMediaItemPropertyTitle, "title", &value<&MediaItem::title>},
    {&MPMediaItemPropertyAlbumTitle, "albumTitle", &value<&MediaItem::album>},
    {&MPMediaItemPropertyArtist, "artist", &value<&MediaItem::artist>},
    {&MPMediaItemPropertyIsCloudItem, "isCloudItem", &value<&MediaItem::is_cloud>},
    {&MPMediaItemPropertyPersistentID, "persistentID", &value<&MediaItem::persistent_id>},
    {&MPMediaItemPropertyAlbumPersistentID, "albumPID", &value<&MediaItem::album_persistent_id>},
    {&MPMediaItemPropertyMediaType, "mediaType", &value<&MediaItem::media_type>},
    {&MPMediaItemPropertyPlaybackDuration, "playbackDuration", &value<&MediaItem::duration>},
    {&MPMediaItemPropertyArtwork, "artwork", &value<&MediaItem::artwork>},
};

// Nearly every caller names a property by its constant, so the address is tried first: the song
// list asks for one property of every song at once.
const Property* property_named(NSString name) {
  for (const Property& property : kProperties) {
    if (*property.name == name) return &property;
  }
  for (const Property& property : kProperties) {
    if (property.name->isEqualToString(name)) return &property;
  }
  return nullptr;
}

}  // namespace

MPMediaItem MediaItem::make(std::shared_ptr<Shelf> shelf, const media::Track& track) {
  const MPMediaItem item = MPMediaItem::alloc().init();
  auto& state = objc::state_of<MediaItem>(item);
  state.shelf_ = std::move(shelf);
  state.track_ = &track;
  return item;
}

objc::Object MediaItem::value_for_property(NSString name) {
  const Property* property = track_ ? property_named(name) : nullptr;
  return property ? property->value(*this) : nil;
}

NSString MediaItem::title() {
  if (!title_) title_ = objc::Ref<NSString>::adopt(make_string(track_->title));
  return title_.get();
}

NSString MediaItem::artist() {
  return shelf_->shared_text(track_->artist);
}

NSString MediaItem::album() {
  return shelf_->shared_text(track_->album);
}

NSNumber MediaItem::persistent_id() {
  return NSNumber::numberWithUnsignedLongLong(track_->id);
}

NSNumber MediaItem::album_persistent_id() {
  return NSNumber::numberWithUnsignedLongLong(track_->album_id);
}

NSNumber MediaItem::media_type() {
  return NSNumber::numberWithInteger(static_cast<NSInteger>(track_->media_type));
}

NSNumber MediaItem::duration() {
  return NSNumber::numberWithDouble(track_->duration_seconds);
}

NSNumber MediaItem::is_cloud() {
  return NSNumber::numberWithBool(track_->is_cloud ? YES : NO);
}

objc::Object MediaItem::artwork() {
  if (!track_->has_artwork()) return nil;
  return Artwork::make(shelf_, *track_).autorelease();
}

BOOL MediaItem::is_equal(objc::Object other) {
  if (other == self) return YES;
  if (!other || !objc::cast<NSObject>(other).isKindOfClass(MPMediaItem::cls())) return NO;
  const media::Track* theirs = objc::state_of<MediaItem>(other).track();
  return track_ && theirs && track_->id == theirs->id ? YES : NO;
}

NSUInteger MediaItem::hash() {
  return track_ ? track_->id : 0;
}

NSString MediaItem::description() {
  if (!track_) return "<MPMediaItem>"_ns;
  const std::string text =
      fmt::format("<MPMediaItem {} \"{}\" by \"{}\">", track_->id, track_->title, track_->artist);
  return make_string(text).autorelease();
}

void export_media_item() {
  if (objc_getClass("MPMediaItem")) return;
  for (const Property& property : kProperties)
    *property.name = make_string(property.text);
  objc::ClassBuilder("MPMediaItem", "NSObject")
      .state<MediaItem>()
      .method<&MediaItem::value_for_property>("valueForProperty:")
      .method<&MediaItem::is_equal>("isEqual:")
      .method<&MediaItem::hash>("hash")
      .method<&MediaItem::description>("description")
      .finish();
}

}  // namespace host::media_player
