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

/// Where a layer stands.
struct LayerTree {
  /// Not retained: it owns the layer.
  CALayer superlayer;
  std::vector<objc::Ref<CALayer>> sublayers;
  objc::Ref<CALayer> mask;
};

/// What is still to be done for a layer.
struct LayerMarks {
  bool needs_display = false;
  bool needs_layout = false;
  /// Some layer below it does.
  bool layout_waits_below = false;
  /// Is it in the list of marked layers?
  bool is_listed = false;

  bool awaits_layout() const { return needs_layout || layout_waits_below; }
};

/// CALayer, in parts. The messages, by subject, are in the files `*_messages.cpp`; they alone
/// change the model and the tree. The service turns to the marks and the animations, the compositor
/// reads.
class Layer : public objc::Implementation<Layer, CALayer> {
 public:
  explicit Layer(CALayer owner);
  ~Layer();

  CALayer handle() const { return self; }
  /// Null where it has none.
  Layer* superlayer() const;
  /// The values at `now`, with the kind's own ones made ready for painting.
  LayerProperties present(double now) const;

  void add_animation(RunningAnimation&& animation);
  /// The same in the place of one with the same key.
  void run(RunningAnimation&& animation);
  void set_drawing(LayerDrawing* kind);
  /// Lets the layers above know that layout waits below them: whoever lays out a tree then walks
  /// only where there is something to do.
  void announce_layout();

  /// Never used twice in a process.
  const std::uint64_t serial;
  LayerModel model;
  LayerTree tree;
  LayerMarks marks;
  bool needs_display_on_bounds_change = false;
  /// Not retained, as the platform has it.
  objc::Object delegate;
  /// Of which layer it is the presentation, if it is one.
  CALayer model_layer;
  /// What users of layers keep under keys of their own.
  std::map<std::string, objc::Ref<objc::Object>> extra;
  LayerAnimations animations;
  LayerReach reach{*this};
  BackingStore backing_store{self};
  /// What the layer's kind adds, where it is of one.
  LayerDrawing* drawing = nullptr;
  BackdropLayer* backdrop = nullptr;
};

inline Layer& layer_of(CALayer handle) {
  return objc::state_of<Layer>(handle);
}

void export_layer();

}  // namespace host::quartzcore
