#include "host/quartzcore/layers/child_index.h"

#include <algorithm>
#include <utility>

#include "host/quartzcore/layers/layer.h"

namespace host::quartzcore {
namespace {

CGRect enclosing(const CGRect& a, const CGRect& b) {
  const double left = std::min(a.min_x(), b.min_x());
  const double top = std::min(a.min_y(), b.min_y());
  return {left, top, std::max(a.max_x(), b.max_x()) - left, std::max(a.max_y(), b.max_y()) - top};
}

template <class T>
auto at(std::vector<T>& list, std::size_t place) {
  return list.begin() + static_cast<std::ptrdiff_t>(place);
}

double z_of(const Layer& layer) {
  return layer.model.properties.z_position;
}

}  // namespace

ChildIndex::ChildIndex(std::vector<const Layer*> layers, std::vector<CGRect> boxes)
    : layers_(std::move(layers)), boxes_(std::move(boxes)) {
  z_.reserve(layers_.size());
  for (const Layer* layer : layers_)
    z_.push_back(z_of(*layer));
  make_lots(0);
}

void ChildIndex::append(const Layer& layer, const CGRect& box) {
  const auto above = std::upper_bound(z_.begin(), z_.end(), z_of(layer));
  const auto place = static_cast<std::size_t>(above - z_.begin());
  put(place, layer, box);
  if (changes_ == 0) make_lots(place / kLot);
}

bool ChildIndex::insert(std::size_t place, const Layer& layer) {
  const bool is_flat = z_of(layer) == 0 && z_.front() == 0 && z_.back() == 0;
  if (!is_flat) return false;
  put(place, layer, {});
  return note_moved(layer);
}

bool ChildIndex::erase(const Layer& layer) {
  const std::size_t place = place_of(layer);
  std::erase(moved_, &layer);
  layers_.erase(at(layers_, place));
  z_.erase(at(z_, place));
  boxes_.erase(at(boxes_, place));
  return !layers_.empty() && ++changes_ <= kMostChanges;
}

bool ChildIndex::note_moved(const Layer& layer) {
  moved_.push_back(&layer);
  return ++changes_ <= kMostChanges;
}

std::size_t ChildIndex::place_of(const Layer& layer) const {
  return static_cast<std::size_t>(std::find(layers_.begin(), layers_.end(), &layer) -
                                  layers_.begin());
}

bool ChildIndex::has_other_z(std::size_t place) const {
  return z_of(*layers_[place]) != z_[place];
}

void ChildIndex::put(std::size_t place, const Layer& layer, const CGRect& box) {
  layers_.insert(at(layers_, place), &layer);
  z_.insert(at(z_, place), z_of(layer));
  boxes_.insert(at(boxes_, place), box);
}

/// Makes the lots from that number on.
void ChildIndex::make_lots(std::size_t first) {
  lots_.resize(first);
  for (std::size_t i = first * kLot; i < boxes_.size(); ++i) {
    if (i % kLot == 0) {
      lots_.push_back(boxes_[i]);
    } else {
      lots_.back() = enclosing(lots_.back(), boxes_[i]);
    }
  }
}

}  // namespace host::quartzcore
