#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/media_player/item_store.h"
#include "objc/class_builder.h"
#include "platform/MediaPlayer/MPMediaQuery.h"

namespace host::media_player {

/// A property and its required value.
class Predicate : public objc::Implementation<Predicate, MPMediaPropertyPredicate> {
 public:
  explicit Predicate(MPMediaPropertyPredicate owner) : Implementation(owner) {}

  /// Returns a new predicate; the caller owns it. A number may be an NSNumber or its decimal
  /// digits.
  static MPMediaPropertyPredicate make(objc::Object value, NSString property);

  /// Returns false for every song when the property cannot be compared, or when no song has such a
  /// value.
  bool matches(const media::Track& track) const;
  /// Returns the only album, or the only song, that can match; nothing when others may match too.
  std::optional<std::uint64_t> only_album() const;
  std::optional<std::uint64_t> only_song() const;

 private:
  using NumberOf = std::uint64_t (*)(const media::Track&);
  using TextOf = std::string_view (*)(const media::Track&);

  NumberOf number_of_ = nullptr;
  TextOf text_of_ = nullptr;
  std::uint64_t number_ = 0;
  std::string text_;
};

class Query : public objc::Implementation<Query, MPMediaQuery> {
 public:
  explicit Query(MPMediaQuery owner) : Implementation(owner) {}

  void add_filter_predicate(MPMediaPropertyPredicate predicate);
  /// Returns the same array until the library changes or a predicate is added.
  NSArray items();

  /// Returns the songs in `items` without creating an object for any of them.
  media::SongList songs() const;

 private:
  bool matches(const media::Track& track) const;
  /// Returns the positions of the songs in the library, in its order.
  std::vector<std::uint32_t> find_places(const media::Library& library) const;
  NSArray find_items(const std::shared_ptr<ItemStore>& store) const;

  std::vector<objc::Ref<MPMediaPropertyPredicate>> predicates_;
  std::weak_ptr<ItemStore> asked_;  // The store that `items_` came from.
  objc::Ref<NSArray> items_;
};

void export_query();

}  // namespace host::media_player
