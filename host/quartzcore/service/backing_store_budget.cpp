#include "host/quartzcore/service/backing_store_budget.h"

#include "host/quartzcore/layers/layer.h"

namespace host::quartzcore {
namespace {

// What is in sight is looked at in vain; a turn of the loop has no time for all of that.
constexpr int kMostLooks = 64;

// Nobody sees it, so the screen has not changed.
void drop_backing_store(Layer& layer) {
  layer.backing_store.forget();
  layer.model.contents.show({});
  layer.marks.needs_display = true;
  if (layer.model.contents.has_own_place()) layer.reach.forget();
}

}  // namespace

void trim_backing_stores() {
  for (int look = 0; look < kMostLooks && backing_store_bytes() > kBackingStoreBudget; ++look) {
    Layer& layer = layer_of(oldest_backing_store());
    if (layer.reach.is_clipped_away())
      drop_backing_store(layer);
    else
      renew_oldest_backing_store();
  }
}

}  // namespace host::quartzcore
