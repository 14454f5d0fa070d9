#include "host/quartzcore/layers/backing_stores.h"

#include <list>
#include <unordered_map>
#include <utility>

namespace host::quartzcore {
namespace {

struct Entry {
  CALayer layer;
  std::size_t bytes;
};

struct BackingStores {
  std::list<Entry> oldest_first;
  std::unordered_map<objc::Id, std::list<Entry>::iterator> places;
  std::size_t bytes = 0;
};

// Never destroyed: layers may outlive other static objects.
BackingStores& stores() {
  static auto* const made = new BackingStores;
  return *made;
}

}  // namespace

void BackingStore::note(std::size_t bytes) {
  forget();
  auto& all = stores();
  all.places[layer_.id()] = all.oldest_first.insert(all.oldest_first.end(), {layer_, bytes});
  all.bytes += bytes;
  is_listed_ = true;
}

void BackingStore::forget() {
  if (!std::exchange(is_listed_, false)) return;
  auto& all = stores();
  const auto found = all.places.find(layer_.id());
  all.bytes -= found->second->bytes;
  all.oldest_first.erase(found->second);
  all.places.erase(found);
}

std::size_t backing_store_bytes() {
  return stores().bytes;
}

CALayer oldest_backing_store() {
  return stores().oldest_first.front().layer;
}

void for_each_backing_store(const std::function<void(CALayer)>& visit) {
  for (const Entry& entry : stores().oldest_first)
    visit(entry.layer);
}

void renew_oldest_backing_store() {
  auto& layers = stores().oldest_first;
  layers.splice(layers.end(), layers, layers.begin());
}

}  // namespace host::quartzcore
