#pragma once

#include <cairo.h>

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "host/quartzcore/animations/running_animation.h"
#include "host/quartzcore/layers/layer_properties.h"

namespace host::quartzcore {

/// What a kind of layer draws besides background, contents and border: shapes, gradients.
class LayerDrawing {
 public:
  virtual ~LayerDrawing() = default;

  /// Makes the values of `now` out of the model and the running animations.
  virtual void present(const std::vector<RunningAnimation>& animations, double now) = 0;
  /// The model's value of a property of this kind, and nothing for one that it does not have.
  virtual std::optional<Value> model_value(std::string_view key_path) const = 0;
  /// Equal numbers mean equal drawings at equal bounds.
  virtual std::uint64_t signature() const = 0;
  /// What the drawing may touch, in the layer's coordinates.
  virtual CGRect extent(const LayerProperties& properties) const = 0;
  /// Draws in the layer's coordinates.
  virtual void paint(cairo_t* drawing, const LayerProperties& properties) const = 0;
};

}  // namespace host::quartzcore
