#pragma once

#include <string_view>
#include <vector>

#include "host/quartzcore/animations/running_animation.h"

namespace host::quartzcore {

/// The animations of one layer.
class LayerAnimations {
 public:
  LayerAnimations() = default;
  LayerAnimations(const LayerAnimations&) = delete;
  LayerAnimations& operator=(const LayerAnimations&) = delete;
  /// Animations that still run end unfinished.
  ~LayerAnimations();

  bool empty() const { return animations_.empty(); }
  const std::vector<RunningAnimation>& all() const { return animations_; }
  /// Returns the animation with this key, or null.
  RunningAnimation* find(std::string_view key);

  /// Adds an animation to the layer and to the current transaction.
  void add(RunningAnimation&& animation);
  /// Removes the animations under the key. Returns false when there were none.
  bool remove(std::string_view key, double now);
  void remove_all(double now);

  /// Marks the animations that are due as started, and appends those whose delegates observe the
  /// start to `observed`. Returns true when others have yet to start.
  bool start(double now, std::vector<RunningAnimation>& observed);
  /// Returns the animations that are over, for the caller to stop. Removes them, unless their last
  /// value must stay visible.
  std::vector<RunningAnimation> take_ended(double now);

  bool wants_frames() const;
  /// The clock time at which the next running animation ends; infinity when none does.
  double next_end() const;
  /// True while the size on the screen is animated; scaled copies are then not worth keeping.
  bool is_scaling(double now) const;
  /// True when one of them may change where the layer is.
  bool may_move() const;
  static bool moves(const RunningAnimation& animation);

  /// True while the layer is in the list of animated layers.
  bool is_listed = false;

 private:
  std::vector<RunningAnimation> animations_;
};

}  // namespace host::quartzcore
