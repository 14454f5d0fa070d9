#pragma once

#include <cairo.h>

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "host/quartzcore/animations/running_animation.h"
#include "host/quartzcore/layers/layer_properties.h"

namespace host::quartzcore {

/// What a kind of layer draws in addition to background, contents and border: shapes, gradients.
class LayerDrawing {
 public:
  virtual ~LayerDrawing() = default;

  /// Computes the values at `now` from the model and the running animations.
  virtual void present(const std::vector<RunningAnimation>& animations, double now) = 0;
  /// The model's value of a property of this kind; nothing for an unknown property.
  virtual std::optional<Value> model_value(std::string_view key_path) const = 0;
  /// Equal numbers mean equal drawings at equal bounds.
  virtual std::uint64_t signature() const = 0;
  /// The area that the drawing may cover, in the layer's coordinates.
  virtual CGRect extent(const LayerProperties& properties) const = 0;
  /// Draws in the layer's coordinates.
  virtual void paint(cairo_t* drawing, const LayerProperties& properties) const = 0;
};

}  // namespace host::quartzcore
