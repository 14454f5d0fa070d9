#include "host/quartzcore/layers/layer_reach.h"

#include <algorithm>
#include <utility>

#include "host/quartzcore/layers/layer.h"

namespace host::quartzcore {
namespace {

constexpr double kHalfOfEverything = 1e9;
constexpr CGRect kEverything{-kHalfOfEverything, -kHalfOfEverything, 2 * kHalfOfEverything,
                             2 * kHalfOfEverything};

bool touch(const CGRect& a, const CGRect& b) {
  return a.min_x() <= b.max_x() && b.min_x() <= a.max_x() && a.min_y() <= b.max_y() &&
         b.min_y() <= a.max_y();
}

}  // namespace

// The reach is computed even if it is not used: an index that holds this box is invalidated only
// when a known reach is forgotten.
CGRect LayerReach::box() const {
  const CGRect reach = in_layer();
  return layer_.animations.may_move()
             ? kEverything
             : CGRectApplyAffineTransform(reach, layer_.model.properties.to_super());
}

// A kind's drawing may cover any place, and changes without notice to the layer.
CGRect LayerReach::in_layer() const {
  if (is_known_) return in_layer_;
  is_known_ = true;
  if (layer_.animations.may_move() || layer_.drawing) return in_layer_ = kEverything;
  const CGRect& bounds = layer_.model.properties.bounds;
  in_layer_ = bounds;
  if (layer_.model.masks_to_bounds) return in_layer_;
  const Contents& contents = layer_.model.contents;
  if (const Image* image = contents.image())
    in_layer_ = CGRectUnion(in_layer_, contents.place_of(*image, bounds));
  for (const auto& child : layer_.tree.sublayers)
    in_layer_ = CGRectUnion(in_layer_, layer_of(child.get()).reach.box());
  return in_layer_;
}

void LayerReach::forget() {
  if (!std::exchange(is_known_, false)) return;
  if (Layer* above = layer_.superlayer()) above->reach.forget_children();
}

void LayerReach::forget_children() {
  for (LayerReach* reach = this;;) {
    reach->is_index_stale_ = true;
    if (reach->layer_.model.masks_to_bounds || !std::exchange(reach->is_known_, false)) return;
    Layer* above = reach->layer_.superlayer();
    if (!above) return;
    reach = &above->reach;
  }
}

std::vector<const Layer*> LayerReach::children_in_order() const {
  std::vector<const Layer*> order;
  order.reserve(layer_.tree.sublayers.size());
  for (const auto& child : layer_.tree.sublayers)
    order.push_back(&layer_of(child.get()));
  const auto z = [](const Layer* one) { return one->model.properties.z_position; };
  if (std::any_of(order.begin(), order.end(), [&](const Layer* one) { return z(one) != 0; })) {
    std::stable_sort(order.begin(), order.end(),
                     [&](const Layer* a, const Layer* b) { return z(a) < z(b); });
  }
  return order;
}

const ChildIndex* LayerReach::child_index() const {
  if (layer_.tree.sublayers.size() < ChildIndex::kWorthwhile) return nullptr;
  if (!is_index_stale_) return child_index_.get();
  std::vector<const Layer*> order = children_in_order();
  std::vector<CGRect> boxes;
  boxes.reserve(order.size());
  for (const Layer* child : order)
    boxes.push_back(child->reach.box());
  child_index_ = std::make_unique<ChildIndex>(std::move(order), std::move(boxes));
  is_index_stale_ = false;
  return child_index_.get();
}

/// True when a layer above, made larger by that many of its sizes on each side, still clips it
/// away.
bool LayerReach::is_clipped_away_by(double sizes) const {
  CGRect place = layer_.model.properties.bounds;
  if (CGRectIsEmpty(place)) return false;
  const Layer* layer = &layer_;
  while (const Layer* above = layer->superlayer()) {
    place = CGRectApplyAffineTransform(place, layer->model.properties.to_super());
    const CGRect& bounds = above->model.properties.bounds;
    const CGRect near =
        CGRectInset(bounds, -sizes * bounds.size.width, -sizes * bounds.size.height);
    if (above->model.masks_to_bounds && !touch(place, near)) return true;
    layer = above;
  }
  return false;
}

}  // namespace host::quartzcore
