#include "host/quartzcore/layers/marked_layers.h"

#include <utility>

#include "host/quartzcore/layers/retained_layers.h"

namespace host::quartzcore {
namespace {

std::vector<CALayer> marked;

}  // namespace

void add_marked_layer(CALayer layer) {
  marked.push_back(layer);
}
void forget_marked_layer(CALayer layer) {
  std::erase(marked, layer);
}
std::size_t marked_layer_count() {
  return marked.size();
}
std::vector<objc::Ref<CALayer>> take_marked_layers() {
  return retained(std::exchange(marked, {}));
}

}  // namespace host::quartzcore
