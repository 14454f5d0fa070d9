#include "host/media_player/query.h"

#include <algorithm>

#include "host/media_player/media_service.h"
#include "platform/Foundation/NSValue.h"

// Loaded libraries bind to this in the executable.
#pragma GCC visibility push(default)
extern "C" {
NSString MPMediaLibraryDidChangeNotification;
}
#pragma GCC visibility pop

namespace host::media_player {
namespace {

using media::Track;

struct Comparison {
  NSString* property;
  std::string (*text_of)(const Track&);
};

// Length and cover tell no songs apart, so nothing is found by them.
constexpr Comparison kComparisons[] = {
    {&MPMediaItemPropertyPersistentID, [](const Track& track) { return std::to_string(track.id); }},
    {&MPMediaItemPropertyAlbumPersistentID,
     [](const Track& track) { return std::to_string(track.album_id); }},
    {&MPMediaItemPropertyMediaType,
     [](const Track& track) { return std::to_string(static_cast<unsigned>(track.media_type)); }},
    {&MPMediaItemPropertyIsCloudItem,
     [](const Track& track) { return std::to_string(static_cast<int>(track.is_cloud)); }},
    {&MPMediaItemPropertyTitle, [](const Track& track) { return std::string{track.title}; }},
    {&MPMediaItemPropertyAlbumTitle, [](const Track& track) { return std::string{track.album}; }},
    {&MPMediaItemPropertyArtist, [](const Track& track) { return std::string{track.artist}; }},
};

std::string text_from(objc::Object value) {
  const auto object = objc::cast<NSObject>(value);
  if (object.isKindOfClass(NSNumber::cls())) {
    return std::to_string(objc::cast<NSNumber>(value).unsignedLongLongValue());
  }
  const char* text = object.description().UTF8String();
  return text ? text : "";
}

MPMediaPropertyPredicate predicate_with_value(objc::Object, objc::Object value, NSString property) {
  return Predicate::make(value, property).autorelease();
}

}  // namespace

MPMediaPropertyPredicate Predicate::make(objc::Object value, NSString property) {
  const MPMediaPropertyPredicate predicate = MPMediaPropertyPredicate::alloc().init();
  auto& state = objc::state_of<Predicate>(predicate);
  const auto found = std::ranges::find_if(kComparisons, [property](const Comparison& comparison) {
    return comparison.property->isEqualToString(property);
  });
  if (value && found != std::end(kComparisons)) {
    state.text_of_ = found->text_of;
    state.wanted_ = text_from(value);
  }
  return predicate;
}

bool Predicate::matches(const Track& track) const {
  return text_of_ && text_of_(track) == wanted_;
}

void Query::add_filter_predicate(MPMediaPropertyPredicate predicate) {
  if (!predicate) return;
  predicates_.push_back(objc::Ref<MPMediaPropertyPredicate>::retain(predicate));
  asked_.reset();
}

bool Query::matches(const Track& track) const {
  return std::ranges::all_of(predicates_, [&track](const auto& predicate) {
    return objc::state_of<Predicate>(predicate.get()).matches(track);
  });
}

NSArray Query::items() {
  MediaService* service = MediaService::current();
  if (!service) return NSArray::array();
  const auto& store = service->items();
  if (!items_ || asked_.lock() != store) {
    items_.reset(find_items(store));
    asked_ = store;
  }
  return items_.get();
}

NSArray Query::find_items(const std::shared_ptr<ItemStore>& store) const {
  if (predicates_.empty()) return ItemList::make(store).autorelease();
  const NSMutableArray found = NSMutableArray::array();
  const auto tracks = store->library().tracks();
  for (std::size_t i = 0; i < tracks.size(); ++i) {
    if (matches(tracks[i])) found.addObject(store->item(i));
  }
  return found;
}

std::vector<std::uint64_t> Query::song_ids() const {
  std::vector<std::uint64_t> ids;
  if (MediaService* service = MediaService::current()) {
    for (const Track& track : service->items()->library().tracks()) {
      if (matches(track)) ids.push_back(track.id);
    }
  }
  return ids;
}

void export_query() {
  if (objc_getClass("MPMediaQuery")) return;
  MPMediaLibraryDidChangeNotification = "MPMediaLibraryDidChangeNotification"_ns;
  objc::ClassBuilder("MPMediaPropertyPredicate", "NSObject")
      .state<Predicate>()
      .class_method<&predicate_with_value>("predicateWithValue:forProperty:")
      .finish();
  objc::ClassBuilder("MPMediaQuery", "NSObject")
      .state<Query>()
      .method<&Query::add_filter_predicate>("addFilterPredicate:")
      .method<&Query::items>("items")
      .finish();
}

}  // namespace host::media_player
