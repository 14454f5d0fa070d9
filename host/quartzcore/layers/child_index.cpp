#include "host/quartzcore/layers/child_index.h"

#include <algorithm>
#include <utility>

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

}  // namespace

ChildIndex::ChildIndex(std::vector<const Layer*> layers, std::vector<CGRect> boxes)
    : layers_(std::move(layers)), boxes_(std::move(boxes)) {
  make_lots();
}

void ChildIndex::append(const Layer& layer, const CGRect& box) {
  layers_.push_back(&layer);
  boxes_.push_back(box);
  if (changes_ == 0) add_to_lot(layers_.size() - 1);
}

bool ChildIndex::insert(std::size_t place, const Layer& layer) {
  layers_.insert(at(layers_, place), &layer);
  boxes_.insert(at(boxes_, place), CGRect());
  return note_moved(layer);
}

bool ChildIndex::erase(std::size_t place) {
  std::erase(moved_, layers_[place]);
  layers_.erase(at(layers_, place));
  boxes_.erase(at(boxes_, place));
  return count_change();
}

bool ChildIndex::note_moved(const Layer& layer) {
  moved_.push_back(&layer);
  return count_change();
}

std::size_t ChildIndex::place_of(const Layer* layer) const {
  return static_cast<std::size_t>(std::find(layers_.begin(), layers_.end(), layer) -
                                  layers_.begin());
}

void ChildIndex::add_to_lot(std::size_t place) {
  if (place % kLot == 0) {
    lots_.push_back(boxes_[place]);
  } else {
    lots_.back() = enclosing(lots_.back(), boxes_[place]);
  }
}

void ChildIndex::make_lots() {
  lots_.clear();
  for (std::size_t i = 0; i < boxes_.size(); ++i)
    add_to_lot(i);
}

}  // namespace host::quartzcore
