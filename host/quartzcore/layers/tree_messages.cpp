#include <algorithm>

#include "host/quartzcore/layers/layer.h"
#include "host/quartzcore/layers/layer_changes.h"
#include "host/quartzcore/layers/layer_messages.h"

namespace host::quartzcore {
namespace {

using Sublayers = std::vector<objc::Ref<CALayer>>;

std::size_t index_of(CALayer layer, const Sublayers& sublayers) {
  const auto found = std::find_if(sublayers.begin(), sublayers.end(),
                                  [&](const auto& child) { return child.get() == layer; });
  return static_cast<std::size_t>(found - sublayers.begin());
}

void leave_superlayer(CALayer self) {
  Layer* const above = layer_of(self).superlayer();
  if (!above) return;
  layer_of(self).tree.superlayer = nil;
  note_layer_change();
  if (above->tree.mask.get() == self) {
    above->tree.mask.reset();
    return;
  }
  Sublayers& siblings = above->tree.sublayers;
  const std::size_t index = index_of(self, siblings);
  if (index == siblings.size()) return;
  above->reach.sublayer_left(layer_of(self));
  siblings.erase(siblings.begin() + static_cast<std::ptrdiff_t>(index));
}

void insert_child(CALayer self, CALayer child, std::size_t index) {
  if (!child || child == self) return;
  const auto kept = objc::Ref<CALayer>::retain(child);
  Sublayers& sublayers = layer_of(self).tree.sublayers;
  LayerTree& place = layer_of(child).tree;
  const std::size_t before =
      place.superlayer == self ? index_of(child, sublayers) : sublayers.size();
  leave_superlayer(child);
  // Removing the layer from its former place below the index has shifted the others down.
  if (before < index) --index;
  index = std::min(index, sublayers.size());
  sublayers.insert(sublayers.begin() + static_cast<std::ptrdiff_t>(index), kept);
  place.superlayer = self;
  layer_of(self).reach.sublayer_came(index);
  if (layer_of(child).marks.awaits_layout()) layer_of(child).announce_layout();
  note_layer_change();
  self.setNeedsLayout();
}

void drop_animations_of_tree(CALayer self) {
  const Layer& layer = layer_of(self);
  if (!layer.animations.empty()) self.removeAllAnimations();
  for (const auto& child : layer.tree.sublayers)
    drop_animations_of_tree(child.get());
}

CALayer superlayer(CALayer self) {
  return layer_of(self).tree.superlayer;
}

NSArray sublayers(CALayer self) {
  const Sublayers& children = layer_of(self).tree.sublayers;
  if (children.empty()) return nil;
  const NSMutableArray array = NSMutableArray::arrayWithCapacity(children.size());
  for (const auto& child : children)
    array.addObject(child.get());
  return array;
}

void set_sublayers(CALayer self, NSArray layers) {
  for (const auto& child : Sublayers(layer_of(self).tree.sublayers))
    child->removeFromSuperlayer();
  if (!layers) return;
  for (CALayer layer : layers.of<CALayer>())
    self.addSublayer(layer);
}

void add_sublayer(CALayer self, CALayer layer) {
  insert_child(self, layer, layer_of(self).tree.sublayers.size());
}

void insert_sublayer_at_index(CALayer self, CALayer layer, unsigned index) {
  // The index is the layer's final one: a layer that only moves is not counted itself.
  if (layer && layer.superlayer() == self) {
    const auto kept = objc::Ref<CALayer>::retain(layer);
    leave_superlayer(layer);
    insert_child(self, layer, index);
    return;
  }
  insert_child(self, layer, index);
}

void insert_sublayer_above(CALayer self, CALayer layer, CALayer sibling) {
  const Sublayers& children = layer_of(self).tree.sublayers;
  const std::size_t at = index_of(sibling, children);
  insert_child(self, layer, at < children.size() ? at + 1 : children.size());
}

void insert_sublayer_below(CALayer self, CALayer layer, CALayer sibling) {
  const Sublayers& children = layer_of(self).tree.sublayers;
  const std::size_t at = index_of(sibling, children);
  insert_child(self, layer, at < children.size() ? at : 0);
}

void remove_from_superlayer(CALayer self) {
  if (!layer_of(self).tree.superlayer) return;
  const auto kept = objc::Ref<CALayer>::retain(self);
  const auto parent = objc::Ref<CALayer>::retain(layer_of(self).tree.superlayer);
  leave_superlayer(self);
  // A layer outside of any tree is not drawn, so its animations cannot continue.
  drop_animations_of_tree(self);
  parent->setNeedsLayout();
}

CALayer mask(CALayer self) {
  return layer_of(self).tree.mask.get();
}

void set_mask(CALayer self, CALayer mask) {
  objc::Ref<CALayer>& place = layer_of(self).tree.mask;
  if (mask == place.get()) return;
  if (place) layer_of(place.get()).tree.superlayer = nil;
  mask.removeFromSuperlayer();
  place.reset(mask);
  if (mask) layer_of(mask).tree.superlayer = self;
  note_layer_change();
}

}  // namespace

void add_tree_messages(objc::ClassBuilder& builder) {
  builder.method<&superlayer>("superlayer")
      .method<&sublayers>("sublayers")
      .method<&set_sublayers>("setSublayers:")
      .method<&add_sublayer>("addSublayer:")
      .method<&insert_sublayer_at_index>("insertSublayer:atIndex:")
      .method<&insert_sublayer_above>("insertSublayer:above:")
      .method<&insert_sublayer_below>("insertSublayer:below:")
      .method<&remove_from_superlayer>("removeFromSuperlayer")
      .method<&mask>("mask")
      .method<&set_mask>("setMask:");
}

}  // namespace host::quartzcore
