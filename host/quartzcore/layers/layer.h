#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "host/quartzcore/layers/backing_stores.h"
#include "host/quartzcore/layers/layer_animations.h"
#include "host/quartzcore/layers/layer_drawing.h"
#include "host/quartzcore/layers/layer_model.h"
#include "host/quartzcore/layers/layer_reach.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/QuartzCore/CALayer.h"

namespace host::quartzcore {

class BackdropLayer;

/// A layer's place in the tree.
struct LayerTree {
  /// Not retained: it owns the layer.
  CALayer superlayer;
  std::vector<objc::Ref<CALayer>> sublayers;
  objc::Ref<CALayer> mask;
};

/// A layer's pending work.
struct LayerMarks {
  bool needs_display = false;
  bool needs_layout = false;
  /// A layer below this one needs layout.
  bool layout_waits_below = false;
  /// True while it is in the list of marked layers.
  bool is_listed = false;

  bool awaits_layout() const { return needs_layout || layout_waits_below; }
};

/// CALayer, in parts. The messages, by subject, are in the files `*_messages.cpp`; only they change
/// the model and the tree. The service works on the marks and the animations; the compositor only
/// reads.
class Layer : public objc::Implementation<Layer, CALayer> {
 public:
  explicit Layer(CALayer owner);
  ~Layer();

  CALayer handle() const { return self; }
  /// Null when it has none.
  Layer* superlayer() const;
  /// Returns the values at `now`, and prepares the kind's own values for painting.
  LayerProperties present(double now) const;

  void add_animation(RunningAnimation&& animation);
  /// The same, but replaces an animation with the same key.
  void run(RunningAnimation&& animation);
  void set_drawing(LayerDrawing* kind);
  /// Marks the layers above as having layout pending below them, so that laying out a tree visits
  /// only branches with work to do.
  void announce_layout();

  /// Unique within the process.
  const std::uint64_t serial;
  // What every change reads shares a cache line with the object's class: thousands of layers may
  // change at once.
  /// Not retained, as on the platform.
  objc::Object delegate;
  LayerMarks marks;
  bool needs_display_on_bounds_change = false;
  LayerTree tree;
  LayerModel model;
  /// For a presentation layer: the layer that it presents.
  CALayer model_layer;
  /// Values that callers have set under their own keys.
  std::map<std::string, objc::Ref<objc::Object>> extra;
  LayerAnimations animations;
  LayerReach reach{*this};
  BackingStore backing_store{self};
  /// The drawing of the layer's kind; null for a plain layer.
  LayerDrawing* drawing = nullptr;
  BackdropLayer* backdrop = nullptr;
};

inline Layer& layer_of(CALayer handle) {
  return objc::state_of<Layer>(handle);
}

void export_layer();

}  // namespace host::quartzcore
