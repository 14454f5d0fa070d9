#pragma once

#include <string_view>

#include "host/quartzcore/animations/property_access.h"
#include "host/quartzcore/values/rgba.h"
#include "platform/CoreGraphics/CGAffineTransform.h"
#include "platform/CoreGraphics/CGRect.h"
#include "platform/QuartzCore/CATransform3D.h"

namespace host::quartzcore {

/// The values of a layer that may be animated: once as the model has them, once as they are drawn.
struct LayerProperties {
  CGRect bounds;
  CGPoint position;
  CGPoint anchor{0.5, 0.5};
  double z_position = 0;
  CATransform3D transform;
  double opacity = 1;
  double corner_radius = 0;
  double border_width = 0;
  Rgba border_color{0, 0, 0, 1};
  Rgba background_color;

  /// From the layer's coordinates to its superlayer's; what leaves the plane is flattened.
  CGAffineTransform to_super() const;
  /// The box round the bounds in the superlayer's coordinates.
  CGRect frame() const;
  /// The same with bounds and position that have that frame.
  LayerProperties placed_in(const CGRect& frame) const;
};

/// Access to a layer's own property; null for a key path that it does not have.
const PropertyAccess<LayerProperties>* layer_property(std::string_view key_path);

}  // namespace host::quartzcore
