#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "host/media_player/shelf.h"
#include "objc/class_builder.h"
#include "platform/Foundation/NSArray.h"
#include "platform/MediaPlayer/MPMediaItem.h"

namespace host::media_player {

/// The items of one library. Each is created on first use and then kept, so a song is one object
/// for as long as the library does not change.
class ItemStore {
 public:
  explicit ItemStore(std::shared_ptr<const media::Library> library);

  const media::Library& library() const { return shelf_->library(); }
  std::size_t count() const { return items_.size(); }
  /// Returns how many items have been created so far.
  std::size_t made_count() const;

  /// Returns an item that the caller does not own.
  MPMediaItem item(std::size_t index);
  /// Returns an item that the caller does not own; nil when the library does not contain the song.
  MPMediaItem item_with_id(std::uint64_t id);

 private:
  std::shared_ptr<Shelf> shelf_;
  std::vector<objc::Ref<MPMediaItem>> items_;  // One for each track, in the same order.
};

struct MPMediaItemList : objc::Bound<MPMediaItemList, "MPMediaItemList", NSArray> {};

/// An array of all items of a store that creates each item only on access.
class ItemList : public objc::Implementation<ItemList, MPMediaItemList> {
 public:
  explicit ItemList(MPMediaItemList owner) : Implementation(owner) {}

  /// Returns a new array; the caller owns it.
  static NSArray make(std::shared_ptr<ItemStore> store);

  NSUInteger count() const { return store_ ? store_->count() : 0; }
  objc::Object object_at_index(NSUInteger index);
  /// The array is immutable, so a copy is the array itself.
  MPMediaItemList copy_with_zone(void*) const { return self.retain(); }

 private:
  std::shared_ptr<ItemStore> store_;
};

void export_item_list();

}  // namespace host::media_player
