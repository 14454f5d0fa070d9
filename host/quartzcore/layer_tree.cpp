#include <algorithm>

#include "host/quartzcore/layer.h"
#include "host/quartzcore/layer_service.h"

namespace host::quartzcore {

NSArray Layer::sublayers() const {
  if (children_.empty()) return nil;
  const NSMutableArray array = NSMutableArray::arrayWithCapacity(children_.size());
  for (const auto& child : children_)
    array.addObject(child.get());
  return array;
}

void Layer::set_sublayers(NSArray layers) {
  for (const auto& child : std::vector(children_))
    child->removeFromSuperlayer();
  if (!layers) return;
  for (CALayer layer : layers.of<CALayer>())
    self.addSublayer(layer);
}

std::size_t Layer::index_of(CALayer layer) const {
  const auto found = std::find_if(children_.begin(), children_.end(),
                                  [&](const auto& child) { return child.get() == layer; });
  return static_cast<std::size_t>(found - children_.begin());
}

void Layer::leave_superlayer() {
  if (!superlayer_) return;
  Layer& parent = objc::state_of<Layer>(superlayer_);
  superlayer_ = nil;
  note_layer_change();
  if (parent.mask_.get() == self) {
    parent.mask_.reset();
    return;
  }
  const std::size_t index = parent.index_of(self);
  if (index < parent.children_.size())
    parent.children_.erase(parent.children_.begin() + static_cast<std::ptrdiff_t>(index));
  parent.forget_reach_of_children();
}

void Layer::insert_child(CALayer layer, std::size_t index) {
  if (!layer || layer == self) return;
  const auto kept = objc::Ref<CALayer>::retain(layer);
  Layer& child = objc::state_of<Layer>(layer);
  const std::size_t before = child.superlayer_ == self ? index_of(layer) : children_.size();
  child.leave_superlayer();
  // The layer's own former place below the index has just become free.
  if (before < index) --index;
  index = std::min(index, children_.size());
  children_.insert(children_.begin() + static_cast<std::ptrdiff_t>(index), kept);
  child.superlayer_ = self;
  forget_reach_of_children();
  if (child.needs_layout_ || child.layout_waits_below_) child.announce_layout();
  note_layer_change();
  self.setNeedsLayout();
}

void Layer::add_sublayer(CALayer layer) {
  insert_child(layer, children_.size());
}

void Layer::insert_sublayer_at_index(CALayer layer, unsigned index) {
  // The index is the layer's place afterwards: one that only moves counts without itself.
  if (layer && layer.superlayer() == self) {
    const auto kept = objc::Ref<CALayer>::retain(layer);
    objc::state_of<Layer>(layer).leave_superlayer();
    insert_child(layer, index);
    return;
  }
  insert_child(layer, index);
}

void Layer::insert_sublayer_above(CALayer layer, CALayer sibling) {
  const std::size_t at = index_of(sibling);
  insert_child(layer, at < children_.size() ? at + 1 : children_.size());
}

void Layer::insert_sublayer_below(CALayer layer, CALayer sibling) {
  const std::size_t at = index_of(sibling);
  insert_child(layer, at < children_.size() ? at : 0);
}

void Layer::remove_from_superlayer() {
  if (!superlayer_) return;
  const auto kept = objc::Ref<CALayer>::retain(self);
  const auto parent = objc::Ref<CALayer>::retain(superlayer_);
  leave_superlayer();
  // What is in no tree is not drawn, so nothing of it can go on moving.
  drop_animations_of_tree();
  parent->setNeedsLayout();
}

void Layer::drop_animations_of_tree() {
  if (!animations_.empty()) self.removeAllAnimations();
  for (const auto& child : children_)
    objc::state_of<Layer>(child.get()).drop_animations_of_tree();
}

CGAffineTransform Layer::to_root(CALayer& root) const {
  CGAffineTransform transform;
  const Layer* layer = this;
  for (;;) {
    root = layer->self;
    transform = CGAffineTransformConcat(transform, layer->properties_.to_super());
    if (!layer->superlayer_) return transform;
    layer = &objc::state_of<Layer>(layer->superlayer_);
  }
}

CGPoint Layer::convert_point_to(CGPoint point, CALayer layer) const {
  CALayer root;
  const CGPoint outside = CGPointApplyAffineTransform(point, to_root(root));
  if (!layer) return outside;
  const CGAffineTransform other = objc::state_of<Layer>(layer).to_root(root);
  return CGPointApplyAffineTransform(outside, CGAffineTransformInvert(other));
}

CGPoint Layer::convert_point_from(CGPoint point, CALayer layer) const {
  CALayer root;
  if (layer) return objc::state_of<Layer>(layer).convert_point_to(point, self);
  return CGPointApplyAffineTransform(point, CGAffineTransformInvert(to_root(root)));
}

CGRect Layer::convert_rect_to(CGRect rect, CALayer layer) const {
  CALayer root;
  CGAffineTransform transform = to_root(root);
  if (layer) {
    transform = CGAffineTransformConcat(
        transform, CGAffineTransformInvert(objc::state_of<Layer>(layer).to_root(root)));
  }
  return CGRectApplyAffineTransform(rect, transform);
}

CGRect Layer::convert_rect_from(CGRect rect, CALayer layer) const {
  if (layer) return objc::state_of<Layer>(layer).convert_rect_to(rect, self);
  CALayer root;
  return CGRectApplyAffineTransform(rect, CGAffineTransformInvert(to_root(root)));
}

BOOL Layer::contains_point(CGPoint point) const {
  return properties_.bounds.contains(point);
}

CALayer Layer::hit_test(CGPoint point) const {
  if (hidden_ || properties_.opacity <= 0) return nil;
  const CGPoint inside =
      CGPointApplyAffineTransform(point, CGAffineTransformInvert(properties_.to_super()));
  const bool contained = self.containsPoint(inside);
  if (masks_to_bounds_ && !contained) return nil;
  for (auto child = children_.rbegin(); child != children_.rend(); ++child) {
    if (const CALayer hit = (*child)->hitTest(inside)) return hit;
  }
  return contained ? self : CALayer();
}

}  // namespace host::quartzcore
