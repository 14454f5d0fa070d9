#include "host/quartzcore/backing_stores.h"

#include <list>
#include <unordered_map>

#include "host/quartzcore/layer.h"

namespace host::quartzcore {
namespace {

// What is in sight is looked at in vain; a turn of the loop has no time for all of that.
constexpr int kMostLooks = 64;

struct BackingStore {
  CALayer layer;
  std::size_t bytes;
};

struct BackingStores {
  std::list<BackingStore> oldest_first;
  std::unordered_map<objc::Id, std::list<BackingStore>::iterator> places;
  std::size_t bytes = 0;
};

// Never destroyed: layers may end after everything else.
BackingStores& stores() {
  static auto* const made = new BackingStores;
  return *made;
}

}  // namespace

void note_backing_store(CALayer layer, std::size_t bytes) {
  forget_backing_store(layer);
  auto& all = stores();
  all.places[layer.id()] = all.oldest_first.insert(all.oldest_first.end(), {layer, bytes});
  all.bytes += bytes;
}

void forget_backing_store(CALayer layer) {
  auto& all = stores();
  const auto found = all.places.find(layer.id());
  if (found == all.places.end()) return;
  all.bytes -= found->second->bytes;
  all.oldest_first.erase(found->second);
  all.places.erase(found);
}

void trim_backing_stores() {
  auto& all = stores();
  for (int look = 0; look < kMostLooks && all.bytes > kBackingStoreBudget; ++look) {
    const auto oldest = all.oldest_first.begin();
    Layer& layer = objc::state_of<Layer>(oldest->layer);
    if (layer.is_clipped_away())
      layer.drop_backing_store();
    else
      all.oldest_first.splice(all.oldest_first.end(), all.oldest_first, oldest);
  }
}

std::size_t backing_store_bytes() {
  return stores().bytes;
}

}  // namespace host::quartzcore
