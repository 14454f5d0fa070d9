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

}  // namespace

ChildIndex::ChildIndex(std::vector<const Layer*> layers, std::vector<CGRect> boxes)
    : layers_(std::move(layers)), boxes_(std::move(boxes)) {
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    if (i % kLot == 0) {
      lots_.push_back(boxes_[i]);
    } else {
      lots_.back() = enclosing(lots_.back(), boxes_[i]);
    }
  }
}

}  // namespace host::quartzcore
