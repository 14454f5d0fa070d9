#include "host/quartzcore/layers/layer.h"

#include <utility>

#include "host/quartzcore/layers/animated_layers.h"
#include "host/quartzcore/layers/layer_changes.h"
#include "host/quartzcore/layers/marked_layers.h"

namespace host::quartzcore {
namespace {

std::uint64_t next_serial() {
  static std::uint64_t last = 0;
  return ++last;
}

}  // namespace

Layer::Layer(CALayer owner) : Implementation(owner), serial(next_serial()) {}

Layer::~Layer() {
  if (marks.is_listed) forget_marked_layer(self);
  if (animations.is_listed) animated_layers().remove(self);
  for (const auto& child : tree.sublayers)
    layer_of(child.get()).tree.superlayer = nil;
  if (tree.mask) layer_of(tree.mask.get()).tree.superlayer = nil;
}

Layer* Layer::superlayer() const {
  return tree.superlayer ? &layer_of(tree.superlayer) : nullptr;
}

LayerProperties Layer::present(double now) const {
  LayerProperties presented = model.properties;
  if (!animations.empty()) apply_animations(animations.all(), now, layer_property, presented);
  if (drawing) drawing->present(animations.all(), now);
  return presented;
}

void Layer::add_animation(RunningAnimation&& animation) {
  animations.add(std::move(animation));
  if (animations.may_move()) reach.forget();
  animated_layers().note_news();
  if (!std::exchange(animations.is_listed, true)) animated_layers().add(self);
  note_layer_change();
}

void Layer::run(RunningAnimation&& animation) {
  if (!animations.empty())
    self.removeAnimationForKey(NSString::stringWithUTF8String(animation.key.c_str()));
  add_animation(std::move(animation));
}

void Layer::announce_layout() {
  for (Layer* above = superlayer(); above; above = above->superlayer()) {
    if (std::exchange(above->marks.layout_waits_below, true)) return;
  }
}

void Layer::set_drawing(LayerDrawing* kind) {
  drawing = kind;
  reach.forget();
}

}  // namespace host::quartzcore
