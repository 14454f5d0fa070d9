#pragma once

#include <string_view>

#include "host/quartzcore/animations/property_access.h"
#include "host/quartzcore/values/rgba.h"
#include "platform/CoreGraphics/CGAffineTransform.h"
#include "platform/CoreGraphics/CGRect.h"
#include "platform/QuartzCore/CATransform3D.h"

namespace host::quartzcore {

/// The values of a layer that may be animated. One instance holds the model's, another the values
/// as they are drawn.
struct LayerProperties {
  CGRect bounds;
  CGPoint position;
  CGPoint anchor{0.5, 0.5};
  double z_position = 0;
  double opacity = 1;
  CATransform3D transform;
  double corner_radius = 0;
  double border_width = 0;
  Rgba border_color{0, 0, 0, 1};
  Rgba background_color;

  /// The transform from the layer's coordinates to its superlayer's, flattened to the plane.
  CGAffineTransform to_super() const;
  /// The bounding box of the bounds, in the superlayer's coordinates.
  CGRect frame() const;
  /// Returns a copy with the bounds and position that result in this frame.
  LayerProperties placed_in(const CGRect& frame) const;
};

/// Returns the access to a property that every layer has; null for any other key path.
const PropertyAccess<LayerProperties>* layer_property(std::string_view key_path);

}  // namespace host::quartzcore
