#include "host/quartzcore/layers/layer.h"
#include "host/quartzcore/layers/layer_messages.h"

namespace host::quartzcore {
namespace {

/// The transform to the coordinates outside of the topmost layer.
CGAffineTransform to_outside(CALayer self) {
  CGAffineTransform transform;
  for (const Layer* layer = &layer_of(self); layer; layer = layer->superlayer())
    transform = CGAffineTransformConcat(transform, layer->model.properties.to_super());
  return transform;
}

CGAffineTransform from_outside(CALayer self) {
  return CGAffineTransformInvert(to_outside(self));
}

CGPoint convert_point_to(CALayer self, CGPoint point, CALayer layer) {
  const CGPoint outside = CGPointApplyAffineTransform(point, to_outside(self));
  return layer ? CGPointApplyAffineTransform(outside, from_outside(layer)) : outside;
}

CGPoint convert_point_from(CALayer self, CGPoint point, CALayer layer) {
  if (layer) return convert_point_to(layer, point, self);
  return CGPointApplyAffineTransform(point, from_outside(self));
}

CGRect convert_rect_to(CALayer self, CGRect rect, CALayer layer) {
  CGAffineTransform transform = to_outside(self);
  if (layer) transform = CGAffineTransformConcat(transform, from_outside(layer));
  return CGRectApplyAffineTransform(rect, transform);
}

CGRect convert_rect_from(CALayer self, CGRect rect, CALayer layer) {
  if (layer) return convert_rect_to(layer, rect, self);
  return CGRectApplyAffineTransform(rect, from_outside(self));
}

BOOL contains_point(CALayer self, CGPoint point) {
  return layer_of(self).model.properties.bounds.contains(point);
}

CALayer hit_test(CALayer self, CGPoint point) {
  const Layer& layer = layer_of(self);
  const LayerProperties& p = layer.model.properties;
  if (layer.model.hidden || p.opacity <= 0) return nil;
  const CGPoint inside = CGPointApplyAffineTransform(point, CGAffineTransformInvert(p.to_super()));
  const bool contained = self.containsPoint(inside);
  if (layer.model.masks_to_bounds && !contained) return nil;
  const auto& children = layer.tree.sublayers;
  for (auto child = children.rbegin(); child != children.rend(); ++child) {
    if (const CALayer hit = (*child)->hitTest(inside)) return hit;
  }
  return contained ? self : CALayer();
}

}  // namespace

void add_geometry_messages(objc::ClassBuilder& builder) {
  builder.method<&convert_point_from>("convertPoint:fromLayer:")
      .method<&convert_point_to>("convertPoint:toLayer:")
      .method<&convert_rect_from>("convertRect:fromLayer:")
      .method<&convert_rect_to>("convertRect:toLayer:")
      .method<&contains_point>("containsPoint:")
      .method<&hit_test>("hitTest:");
}

}  // namespace host::quartzcore
