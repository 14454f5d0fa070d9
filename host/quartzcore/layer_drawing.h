#pragma once

#include <cairo.h>

#include <cstdint>
#include <vector>

#include "host/quartzcore/layer_properties.h"
#include "host/quartzcore/running_animation.h"

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

/// Applies to `presented` every animation whose key path `find` knows.
template <class Properties, class Find>
void apply_animations(const std::vector<RunningAnimation>& animations, double now, Find find,
                      Properties& presented) {
  for (const RunningAnimation& animation : animations) {
    const auto* access = find(animation.key_path);
    if (!access) continue;
    access->write(presented, animation.evaluate(now, access->read(presented)));
  }
}

/// Mixes `value` into a running signature.
inline std::uint64_t mix_signature(std::uint64_t signature, std::uint64_t value) {
  signature ^= value + 0x9e3779b97f4a7c15ULL + (signature << 6) + (signature >> 2);
  return signature * 0xff51afd7ed558ccdULL;
}
inline std::uint64_t mix_signature(std::uint64_t signature, double value) {
  std::uint64_t bits = 0;
  static_assert(sizeof bits == sizeof value);
  __builtin_memcpy(&bits, &value, sizeof bits);
  return mix_signature(signature, bits);
}
inline std::uint64_t mix_signature(std::uint64_t signature, const Rgba& c) {
  return mix_signature(
      mix_signature(mix_signature(mix_signature(signature, c.red), c.green), c.blue), c.alpha);
}
inline std::uint64_t mix_signature(std::uint64_t signature, CGPoint p) {
  return mix_signature(mix_signature(signature, p.x), p.y);
}
inline std::uint64_t mix_signature(std::uint64_t signature, CGRect r) {
  return mix_signature(mix_signature(signature, r.origin), CGPoint{r.size.width, r.size.height});
}

}  // namespace host::quartzcore
