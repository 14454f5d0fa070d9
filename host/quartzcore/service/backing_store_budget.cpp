#include "host/quartzcore/service/backing_store_budget.h"

#include "host/quartzcore/layers/layer.h"

namespace host::quartzcore {
namespace {

// Checking a visible layer frees nothing; a turn of the loop has no time to check them all.
constexpr int kMostLooks = 64;

// The picture is not visible, so this does not count as a change of the screen.
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
