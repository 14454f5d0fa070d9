#include <algorithm>
#include <array>
#include <utility>

#include "host/quartzcore/layer.h"
#include "host/quartzcore/render_tree.h"

// Where a layer and what is below it may be seen: what a frame does not show costs it nothing.

namespace host::quartzcore {
namespace {

constexpr double kHalfOfEverything = 1e9;
constexpr CGRect kEverything{-kHalfOfEverything, -kHalfOfEverything, 2 * kHalfOfEverything,
                             2 * kHalfOfEverything};

// Animations of these change how a layer looks and not where it is.
constexpr std::array<std::string_view, 5> kUnmovingKeys = {
    "opacity", "backgroundColor", "borderColor", "borderWidth", "cornerRadius"};

bool touch(const CGRect& a, const CGRect& b) {
  return a.min_x() <= b.max_x() && b.min_x() <= a.max_x() && a.min_y() <= b.max_y() &&
         b.min_y() <= a.max_y();
}

}  // namespace

bool Layer::moves(const RunningAnimation& animation) {
  return std::find(kUnmovingKeys.begin(), kUnmovingKeys.end(), animation.key_path) ==
         kUnmovingKeys.end();
}

bool Layer::may_move() const {
  return std::any_of(animations_.begin(), animations_.end(), &Layer::moves);
}

// The reach is made in any case: whoever keeps the box is told only when a known reach is
// forgotten.
CGRect Layer::box() const {
  const CGRect own = reach();
  return may_move() ? kEverything : CGRectApplyAffineTransform(own, properties_.to_super());
}

// Shapes may be drawn anywhere, and change without the layer's knowledge.
CGRect Layer::reach() const {
  if (is_reach_known_) return reach_;
  is_reach_known_ = true;
  if (may_move() || drawing_) return reach_ = kEverything;
  reach_ = properties_.bounds;
  if (masks_to_bounds_) return reach_;
  if (image_) reach_ = CGRectUnion(reach_, contents_rect(*this, properties_.bounds));
  for (const auto& child : children_)
    reach_ = CGRectUnion(reach_, objc::state_of<Layer>(child.get()).box());
  return reach_;
}

void Layer::forget_reach() {
  if (!std::exchange(is_reach_known_, false)) return;
  if (superlayer_) objc::state_of<Layer>(superlayer_).forget_reach_of_children();
}

void Layer::forget_reach_of_children() {
  for (Layer* layer = this;;) {
    layer->is_index_stale_ = true;
    if (layer->masks_to_bounds_ || !std::exchange(layer->is_reach_known_, false)) return;
    if (!layer->superlayer_) return;
    layer = &objc::state_of<Layer>(layer->superlayer_);
  }
}

std::vector<const Layer*> Layer::children_in_order() const {
  std::vector<const Layer*> order;
  order.reserve(children_.size());
  for (const auto& child : children_)
    order.push_back(&objc::state_of<Layer>(child.get()));
  const auto z = [](const Layer* one) { return one->model().z_position; };
  if (std::any_of(order.begin(), order.end(), [&](const Layer* one) { return z(one) != 0; })) {
    std::stable_sort(order.begin(), order.end(),
                     [&](const Layer* a, const Layer* b) { return z(a) < z(b); });
  }
  return order;
}

void Layer::make_child_index() const {
  std::vector<const Layer*> order = children_in_order();
  std::vector<CGRect> boxes;
  boxes.reserve(order.size());
  for (const Layer* child : order)
    boxes.push_back(child->box());
  child_index_ = std::make_unique<ChildIndex>(std::move(order), std::move(boxes));
  is_index_stale_ = false;
}

bool Layer::is_clipped_away() const {
  CGRect place = properties_.bounds;
  if (CGRectIsEmpty(place)) return false;
  for (const Layer* layer = this; layer->superlayer_;) {
    place = CGRectApplyAffineTransform(place, layer->properties_.to_super());
    layer = &objc::state_of<Layer>(layer->superlayer_);
    if (layer->masks_to_bounds_ && !touch(place, layer->properties_.bounds)) return true;
  }
  return false;
}

}  // namespace host::quartzcore
