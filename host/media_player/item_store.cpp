#include "host/media_player/item_store.h"

#include <algorithm>

#include "host/media_player/media_item.h"
#include "host/media_player/range_exception.h"

namespace host::media_player {
ItemStore::ItemStore(std::shared_ptr<const media::Library> library)
    : shelf_(std::make_shared<Shelf>(std::move(library))),
      items_(this->library().tracks().size()) {}

std::size_t ItemStore::made_count() const {
  return static_cast<std::size_t>(
      std::ranges::count_if(items_, [](const auto& item) { return static_cast<bool>(item); }));
}

MPMediaItem ItemStore::item(std::size_t index) {
  objc::Ref<MPMediaItem>& known = items_[index];
  if (!known) {
    known = objc::Ref<MPMediaItem>::adopt(MediaItem::make(shelf_, library().tracks()[index]));
  }
  return known.get();
}

MPMediaItem ItemStore::item_with_id(std::uint64_t id) {
  const media::Track* track = library().find(id);
  if (!track) return nil;
  return item(static_cast<std::size_t>(track - library().tracks().data()));
}

NSArray ItemList::make(std::shared_ptr<ItemStore> store) {
  const MPMediaItemList list = MPMediaItemList::alloc();
  objc::state_of<ItemList>(list).store_ = std::move(store);
  return list;
}

objc::Object ItemList::object_at_index(NSUInteger index) {
  if (index >= count()) {
    raise_range_exception("an array", index, count());
    return nil;
  }
  return store_->item(index);
}

void export_item_list() {
  if (objc_getClass("MPMediaItemList")) return;
  objc::ClassBuilder("MPMediaItemList", "NSArray")
      .state<ItemList>()
      .method<&ItemList::count>("count")
      .method<&ItemList::object_at_index>("objectAtIndex:")
      .method<&ItemList::copy_with_zone>("copyWithZone:")
      .finish();
}

}  // namespace host::media_player
