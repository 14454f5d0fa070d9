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

// Almost every caller names a property by its constant, so its address is compared first: the song
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

// Callers that were given them during this turn rely on them until the turn ends.
MediaItem::~MediaItem() {
  title_.autorelease();
  persistent_id_.autorelease();
}

objc::Object MediaItem::value_for_property(NSString name) {
  if (!track_) return nil;
  // The property that a search asks for on every song.
  if (name == MPMediaItemPropertyTitle) return title();
  const Property* property = property_named(name);
  return property ? property->value(*this) : nil;
}

NSString MediaItem::title() {
  if (!title_) title_ = shelf_->make_title(*track_);
  return title_;
}

NSString MediaItem::artist() {
  if (!artist_) artist_ = shelf_->shared_text(track_->artist);
  return artist_;
}

NSString MediaItem::album() {
  if (!album_) album_ = shelf_->shared_text(track_->album);
  return album_;
}

NSNumber MediaItem::persistent_id() {
  if (!persistent_id_) persistent_id_ = NSNumber::numberWithUnsignedLongLong(track_->id).retain();
  return persistent_id_;
}

NSNumber MediaItem::album_persistent_id() {
  if (!album_id_) album_id_ = shelf_->album_number(track_->album_id);
  return album_id_;
}

NSNumber MediaItem::media_type() {
  static const NSNumber music = NSNumber::numberWithInteger(1).retain();
  static_assert(static_cast<int>(media::MediaType::music) == 1, "a library holds nothing else");
  return music;
}

NSNumber MediaItem::duration() {
  return NSNumber::numberWithDouble(track_->duration_seconds);
}

NSNumber MediaItem::is_cloud() {
  static const NSNumber yes = NSNumber::numberWithBool(YES).retain();
  static const NSNumber no = NSNumber::numberWithBool(NO).retain();
  return track_->is_cloud ? yes : no;
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
