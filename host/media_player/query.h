#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "host/media_player/item_store.h"
#include "objc/class_builder.h"
#include "platform/MediaPlayer/MPMediaQuery.h"

namespace host::media_player {

/// A property's value and the text that it is compared as.
class Predicate : public objc::Implementation<Predicate, MPMediaPropertyPredicate> {
 public:
  explicit Predicate(MPMediaPropertyPredicate owner) : Implementation(owner) {}

  /// A new predicate (+1). Numbers given as text are the numbers that they name.
  static MPMediaPropertyPredicate make(objc::Object value, NSString property);

  /// False for every song when songs cannot be told apart by the property.
  bool matches(const media::Track& track) const;

 private:
  using TextOf = std::string (*)(const media::Track&);
  TextOf text_of_ = nullptr;
  std::string wanted_;
};

class Query : public objc::Implementation<Query, MPMediaQuery> {
 public:
  explicit Query(MPMediaQuery owner) : Implementation(owner) {}

  void add_filter_predicate(MPMediaPropertyPredicate predicate);
  /// The same array until the library changes or a predicate is added.
  NSArray items();

  /// The songs that `items` holds, without making an object for any of them.
  std::vector<std::uint64_t> song_ids() const;

 private:
  bool matches(const media::Track& track) const;
  NSArray find_items(const std::shared_ptr<ItemStore>& store) const;

  std::vector<objc::Ref<MPMediaPropertyPredicate>> predicates_;
  std::weak_ptr<ItemStore> asked_;  // Where `items_` came from.
  objc::Ref<NSArray> items_;
};

void export_query();

}  // namespace host::media_player
