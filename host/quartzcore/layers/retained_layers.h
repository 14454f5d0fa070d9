#pragma once

#include <vector>

#include "objc/ref.h"
#include "platform/QuartzCore/CALayer.h"

namespace host::quartzcore {

/// Returns the layers retained, to keep them alive while they are processed.
inline std::vector<objc::Ref<CALayer>> retained(const std::vector<CALayer>& layers) {
  std::vector<objc::Ref<CALayer>> result;
  result.reserve(layers.size());
  for (CALayer layer : layers)
    result.push_back(objc::Ref<CALayer>::retain(layer));
  return result;
}

}  // namespace host::quartzcore
