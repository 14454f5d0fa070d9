#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "host/media_player/shelf.h"
#include "objc/class_builder.h"
#include "platform/Foundation/NSArray.h"
#include "platform/MediaPlayer/MPMediaItem.h"

namespace host::media_player {

/// The items of one library, each made when it is first asked for and then kept, so that a song is
/// one object for as long as the library does not change.
class ItemStore {
 public:
  explicit ItemStore(std::shared_ptr<const media::Library> library);

  const media::Library& library() const { return shelf_->library(); }
  std::size_t count() const { return items_.size(); }
  /// How many items have been made so far.
  std::size_t made_count() const;

  /// Borrowed.
  MPMediaItem item(std::size_t index);
  /// Borrowed; nil when the library does not hold the song.
  MPMediaItem item_with_id(std::uint64_t id);

 private:
  std::shared_ptr<Shelf> shelf_;
  std::vector<objc::Ref<MPMediaItem>> items_;  // One for each track, in their order.
};

struct MPMediaItemList : objc::Bound<MPMediaItemList, "MPMediaItemList", NSArray> {};

/// An array of all items of a store, made without making any of them.
class ItemList : public objc::Implementation<ItemList, MPMediaItemList> {
 public:
  explicit ItemList(MPMediaItemList owner) : Implementation(owner) {}

  /// A new array (+1).
  static NSArray make(std::shared_ptr<ItemStore> store);

  NSUInteger count() const { return store_ ? store_->count() : 0; }
  objc::Object object_at_index(NSUInteger index);
  /// It never changes, so a copy is the array itself.
  MPMediaItemList copy_with_zone(void*) const { return self.retain(); }

 private:
  std::shared_ptr<ItemStore> store_;
};

void export_item_list();

}  // namespace host::media_player
