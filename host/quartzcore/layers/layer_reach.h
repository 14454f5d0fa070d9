#pragma once

#include <memory>
#include <vector>

#include "host/quartzcore/layers/child_index.h"
#include "platform/CoreGraphics/CGRect.h"

namespace host::quartzcore {

class Layer;

/// The area in which a layer and its sublayers may be visible, which makes layers outside of a
/// frame free of cost. It is computed on request and cached until it is forgotten.
class LayerReach {
 public:
  explicit LayerReach(const Layer& layer) : layer_(layer) {}

  /// The area that the layer with all its sublayers may cover, in its superlayer's coordinates.
  CGRect box() const;
  /// True when, according to the model, a layer above clips it away completely.
  bool is_clipped_away() const { return is_clipped_away_by(0); }
  /// The same, and not even near: it would have to move by more than what clips it is large.
  bool is_far_away() const { return is_clipped_away_by(1); }
  /// Calls `visit` for each sublayer in drawing order. If there are many, it skips most of those
  /// that cannot touch `rect`, which is in this layer's coordinates.
  template <class Visit>
  void visit_sublayers(const CGRect& rect, Visit visit) const {
    if (const ChildIndex* index = child_index()) return index->visit(rect, visit);
    for (const Layer* child : children_in_order())
      visit(*child);
  }

  /// To be called after a change of the layer's place or of the area that it covers.
  void forget();
  /// To be called after a sublayer has been added, with its place in the list, or removed.
  void sublayer_came(std::size_t place);
  void sublayer_left(const Layer& child);

 private:
  bool is_clipped_away_by(double sizes) const;
  CGRect in_layer() const;
  void sublayer_moved(const Layer& child);
  void forget_sublayers_area();
  std::vector<const Layer*> children_in_order() const;
  /// Null when there are only few sublayers.
  const ChildIndex* child_index() const;
  void make_index() const;

  const Layer& layer_;
  // While a layer's reach is unknown, its superlayer's index knows that it has moved, and of the
  // layers above it only those that clip know theirs.
  mutable bool is_known_ = false;
  mutable CGRect in_layer_;
  // Null until it is needed, and after changes that it cannot follow.
  mutable std::unique_ptr<ChildIndex> child_index_;
};

}  // namespace host::quartzcore
