#include "host/quartzcore/layers/layer_model.h"

namespace host::quartzcore {

const Pattern* LayerModel::background_pattern() const {
  if (!background_color.get()) return nullptr;
  const Pattern& pattern = objc::state_of<Color>(object_of(background_color.get())).pattern;
  return pattern ? &pattern : nullptr;
}

}  // namespace host::quartzcore
