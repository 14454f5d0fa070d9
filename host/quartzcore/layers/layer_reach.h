#pragma once

#include <memory>
#include <vector>

#include "host/quartzcore/layers/child_index.h"
#include "platform/CoreGraphics/CGRect.h"

namespace host::quartzcore {

class Layer;

/// Where a layer and what is below it may be seen: what a frame does not show costs it nothing. It
/// is found out when somebody asks, and kept until it is forgotten.
class LayerReach {
 public:
  explicit LayerReach(const Layer& layer) : layer_(layer) {}

  /// What the layer with everything below it may touch, in its superlayer's coordinates.
  CGRect box() const;
  /// Is it cut away whole by a layer above it, as the model has it?
  bool is_clipped_away() const;
  /// Calls `visit` for each sublayer in drawing order; those that cannot touch `rect`, in this
  /// layer's coordinates, are mostly left out where there are many.
  template <class Visit>
  void visit_sublayers(const CGRect& rect, Visit visit) const {
    if (const ChildIndex* index = child_index()) return index->visit(rect, visit);
    for (const Layer* child : children_in_order())
      visit(*child);
  }

  /// After a change of where the layer is, or of what it shows where.
  void forget();
  /// After one of the same kind of a sublayer, or of which there are.
  void forget_children();

 private:
  CGRect in_layer() const;
  std::vector<const Layer*> children_in_order() const;
  /// Null where there are few.
  const ChildIndex* child_index() const;

  const Layer& layer_;
  // A layer whose reach is not known is in no index, and above it only layers that clip know
  // theirs.
  mutable bool is_known_ = false;
  mutable bool is_index_stale_ = true;
  mutable CGRect in_layer_;
  mutable std::unique_ptr<ChildIndex> child_index_;
};

}  // namespace host::quartzcore
