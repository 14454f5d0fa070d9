#include "host/media_player/query.h"

#include <algorithm>
#include <charconv>

#include "host/media_player/media_service.h"
#include "host/runtime/text_bytes.h"
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
  std::uint64_t (*number_of)(const Track&) = nullptr;
  std::string_view (*text_of)(const Track&) = nullptr;
};

std::uint64_t song_of(const Track& track) {
  return track.id;
}
std::uint64_t album_of(const Track& track) {
  return track.album_id;
}

// Length and cover do not identify songs, so they cannot be compared.
constexpr Comparison kComparisons[] = {
    {&MPMediaItemPropertyPersistentID, &song_of},
    {&MPMediaItemPropertyAlbumPersistentID, &album_of},
    {&MPMediaItemPropertyMediaType,
     [](const Track& track) { return static_cast<std::uint64_t>(track.media_type); }},
    {&MPMediaItemPropertyIsCloudItem,
     [](const Track& track) { return static_cast<std::uint64_t>(track.is_cloud); }},
    {&MPMediaItemPropertyTitle, nullptr, [](const Track& track) { return track.title; }},
    {&MPMediaItemPropertyAlbumTitle, nullptr, [](const Track& track) { return track.album; }},
    {&MPMediaItemPropertyArtist, nullptr, [](const Track& track) { return track.artist; }},
};

std::string text_from(objc::Object value) {
  const NSString text = objc::cast<NSObject>(value).description();
  return text ? utf8_of(text) : std::string();
}

std::optional<std::uint64_t> number_from(objc::Object value) {
  if (objc::cast<NSObject>(value).isKindOfClass(NSNumber::cls())) {
    return objc::cast<NSNumber>(value).unsignedLongLongValue();
  }
  const std::string digits = text_from(value);
  std::uint64_t number = 0;
  const char* const end = digits.data() + digits.size();
  const auto [stopped_at, error] = std::from_chars(digits.data(), end, number);
  if (error != std::errc{} || stopped_at != end) return std::nullopt;
  return number;
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
  if (!value || found == std::end(kComparisons)) return predicate;
  if (found->text_of) {
    state.text_of_ = found->text_of;
    state.text_ = text_from(value);
  } else if (const auto number = number_from(value)) {
    state.number_of_ = found->number_of;
    state.number_ = *number;
  }
  return predicate;
}

bool Predicate::matches(const Track& track) const {
  if (number_of_) return number_of_(track) == number_;
  return text_of_ && text_of_(track) == text_;
}

std::optional<std::uint64_t> Predicate::only_album() const {
  return number_of_ == &album_of ? std::optional{number_} : std::nullopt;
}

std::optional<std::uint64_t> Predicate::only_song() const {
  return number_of_ == &song_of ? std::optional{number_} : std::nullopt;
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

std::vector<std::uint32_t> Query::find_places(const media::Library& library) const {
  const auto tracks = library.tracks();
  std::vector<std::uint32_t> places;
  const auto add = [&](std::uint32_t place) {
    if (matches(tracks[place])) places.push_back(place);
  };
  // One album or one song of a hundred thousand is found without looking at the others.
  for (const auto& kept : predicates_) {
    const auto& predicate = objc::state_of<Predicate>(kept.get());
    if (const auto song = predicate.only_song()) {
      const Track* track = library.find(*song);
      if (track) add(static_cast<std::uint32_t>(track - tracks.data()));
      return places;
    }
    if (const auto album = predicate.only_album()) {
      std::ranges::for_each(library.places_of_album(*album), add);
      std::ranges::sort(places);
      return places;
    }
  }
  for (std::uint32_t place = 0; place < tracks.size(); ++place)
    add(place);
  return places;
}

NSArray Query::find_items(const std::shared_ptr<ItemStore>& store) const {
  if (predicates_.empty()) return ItemList::make(store).autorelease();
  const NSMutableArray found = NSMutableArray::array();
  for (const std::uint32_t place : find_places(store->library()))
    found.addObject(store->item(place));
  return found;
}

media::SongList Query::songs() const {
  MediaService* service = MediaService::current();
  if (!service) return media::make_song_list({});
  const media::Library& library = service->items()->library();
  if (predicates_.empty()) return library.songs();
  std::vector<std::uint64_t> ids;
  for (const std::uint32_t place : find_places(library))
    ids.push_back(library.tracks()[place].id);
  return media::make_song_list(std::move(ids));
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
