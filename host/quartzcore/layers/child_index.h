#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "platform/CoreGraphics/CGRect.h"

namespace host::quartzcore {

class Layer;

/// Finds the few visible sublayers among thousands. It checks them in lots of neighbours in drawing
/// order, which are mostly neighbours on the screen as well. It follows changes of some sublayers;
/// after changes of many it has to be made again.
class ChildIndex {
 public:
  /// From this number of sublayers on, an index saves more than it costs.
  static constexpr std::size_t kWorthwhile = 64;

  /// `layers` are in drawing order; `boxes` are the areas that they may cover, in their
  /// superlayer's coordinates.
  ChildIndex(std::vector<const Layer*> layers, std::vector<CGRect> boxes);

  /// To be called for a layer that has become the last one of its superlayer.
  void append(const Layer& layer, const CGRect& box);

  // A change that the index cannot follow returns false, and leaves it unusable.

  /// For a layer with this place among the sublayers. Its box is asked for in `settle`.
  bool insert(std::size_t place, const Layer& layer);
  bool erase(const Layer& layer);
  /// To be called when a layer's box or z position may have changed.
  bool note_moved(const Layer& layer);
  /// To be called before `visit`. Asks `box_of` for the boxes that may have changed.
  template <class BoxOf>
  bool settle(BoxOf box_of) {
    if (changes_ == 0) return true;
    for (const Layer* layer : moved_) {
      const std::size_t place = place_of(*layer);
      if (has_other_z(place)) return false;
      boxes_[place] = box_of(*layer);
    }
    moved_.clear();
    changes_ = 0;
    make_lots(0);
    return true;
  }

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
  // Each change moves or searches the whole list.
  static constexpr int kMostChanges = 16;

  static bool touch(const CGRect& a, const CGRect& b) {
    return a.min_x() <= b.max_x() && b.min_x() <= a.max_x() && a.min_y() <= b.max_y() &&
           b.min_y() <= a.max_y();
  }

  std::size_t place_of(const Layer& layer) const;
  bool has_other_z(std::size_t place) const;
  void put(std::size_t place, const Layer& layer, const CGRect& box);
  void make_lots(std::size_t first);

  std::vector<const Layer*> layers_;
  std::vector<double> z_;
  std::vector<CGRect> boxes_;
  std::vector<CGRect> lots_;
  std::vector<const Layer*> moved_;
  int changes_ = 0;
};

}  // namespace host::quartzcore
