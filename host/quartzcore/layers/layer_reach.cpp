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

bool is_below(const Layer* a, const Layer* b) {
  return a->model.properties.z_position < b->model.properties.z_position;
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
  if (Layer* above = layer_.superlayer()) above->reach.sublayer_moved(layer_);
}

void LayerReach::forget_sublayers_area() {
  if (!layer_.model.masks_to_bounds) forget();
}

void LayerReach::sublayer_moved(const Layer& child) {
  // A mask adds nothing to the area.
  if (child.handle() == layer_.tree.mask.get()) return;
  if (child_index_ && !child_index_->note_moved(child)) child_index_.reset();
  forget_sublayers_area();
}

// Thousands of sublayers are mostly added one after the other, each when it is complete and its
// parts are still in the processor's cache: the best time to measure it.
void LayerReach::sublayer_came(std::size_t place) {
  const auto& sublayers = layer_.tree.sublayers;
  const Layer& child = layer_of(sublayers[place].get());
  const bool is_last = place + 1 == sublayers.size();
  if (child_index_) {
    if (is_last) {
      child_index_->append(child, child.reach.box());
    } else if (!child_index_->insert(place, child)) {
      child_index_.reset();
    }
  } else if (is_last && sublayers.size() == ChildIndex::kWorthwhile) {
    make_index();
  }
  forget_sublayers_area();
}

void LayerReach::sublayer_left(const Layer& child) {
  if (child_index_ && !child_index_->erase(child)) child_index_.reset();
  forget_sublayers_area();
}

std::vector<const Layer*> LayerReach::children_in_order() const {
  std::vector<const Layer*> order;
  order.reserve(layer_.tree.sublayers.size());
  for (const auto& child : layer_.tree.sublayers)
    order.push_back(&layer_of(child.get()));
  if (!std::is_sorted(order.begin(), order.end(), is_below))
    std::stable_sort(order.begin(), order.end(), is_below);
  return order;
}

const ChildIndex* LayerReach::child_index() const {
  if (layer_.tree.sublayers.size() < ChildIndex::kWorthwhile) return nullptr;
  const auto box_of = [](const Layer& child) { return child.reach.box(); };
  if (!child_index_ || !child_index_->settle(box_of)) make_index();
  return child_index_.get();
}

void LayerReach::make_index() const {
  std::vector<const Layer*> order = children_in_order();
  std::vector<CGRect> boxes;
  boxes.reserve(order.size());
  for (const Layer* child : order)
    boxes.push_back(child->reach.box());
  child_index_ = std::make_unique<ChildIndex>(std::move(order), std::move(boxes));
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
