#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "platform/CoreGraphics/CGRect.h"

namespace host::quartzcore {

class Layer;

/// Finds the few visible sublayers among thousands. It checks them in lots of neighbours in drawing
/// order, which are mostly neighbours on the screen as well.
class ChildIndex {
 public:
  /// From this number of sublayers on, an index saves more than it costs.
  static constexpr std::size_t kWorthwhile = 64;

  /// `layers` are in drawing order; `boxes` are the areas that they may cover, in their
  /// superlayer's coordinates.
  ChildIndex(std::vector<const Layer*> layers, std::vector<CGRect> boxes);

  /// Calls `visit` in drawing order for each layer that may touch `rect`.
  template <class Visit>
  void visit(const CGRect& rect, Visit visit) const {
    for (std::size_t lot = 0; lot < lots_.size(); ++lot) {
      if (!touch(lots_[lot], rect)) continue;
      const std::size_t end = std::min(layers_.size(), (lot + 1) * kLot);
      for (std::size_t i = lot * kLot; i < end; ++i) {
        if (touch(boxes_[i], rect)) visit(*layers_[i]);
      }
    }
  }

 private:
  static constexpr std::size_t kLot = 64;

  static bool touch(const CGRect& a, const CGRect& b) {
    return a.min_x() <= b.max_x() && b.min_x() <= a.max_x() && a.min_y() <= b.max_y() &&
           b.min_y() <= a.max_y();
  }

  std::vector<const Layer*> layers_;
  std::vector<CGRect> boxes_;
  std::vector<CGRect> lots_;
};

}  // namespace host::quartzcore
