#include "host/quartzcore/layers/screen_density.h"

#include "host/quartzcore/layers/backing_stores.h"
#include "host/quartzcore/layers/layer.h"
#include "host/quartzcore/layers/layer_changes.h"

namespace host::quartzcore {
namespace {

double density_now = 1;

}  // namespace

double screen_density() {
  return density_now;
}

void set_screen_density(double density) {
  if (density == density_now) return;
  density_now = density;
  for_each_backing_store([](CALayer layer) { layer_of(layer).marks.needs_display = true; });
  note_layer_change();
}

}  // namespace host::quartzcore
