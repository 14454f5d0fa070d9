#pragma once

#include "host/quartzcore/drawing/color.h"
#include "host/quartzcore/layers/contents.h"
#include "host/quartzcore/layers/layer_properties.h"

namespace host::quartzcore {

/// A layer's own properties.
struct LayerModel {
  LayerProperties properties;
  /// The colour objects as they were set.
  KeptColor background_color;
  KeptColor border_color{properties.border_color};
  bool hidden = false;
  bool opaque = false;
  bool masks_to_bounds = false;
  bool should_rasterize = false;
  Contents contents;
  objc::Ref<NSString> name;

  /// Null when the background is a plain colour.
  const Pattern* background_pattern() const;
};

}  // namespace host::quartzcore
