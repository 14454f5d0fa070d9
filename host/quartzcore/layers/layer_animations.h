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
  /// Those that still run end unfinished.
  ~LayerAnimations();

  bool empty() const { return animations_.empty(); }
  const std::vector<RunningAnimation>& all() const { return animations_; }
  /// Null where there is none under the key.
  RunningAnimation* find(std::string_view key);

  /// Adds one to the layer's, and to those of the current transaction.
  void add(RunningAnimation&& animation);
  /// Takes away those under the key. Were there any?
  bool remove(std::string_view key, double now);
  void remove_all(double now);

  /// Marks those whose time has come as started, and adds to `heard` whose start somebody hears of.
  /// Are there others that wait for their time?
  bool start(double now, std::vector<RunningAnimation>& heard);
  /// Takes away those that are over, or leaves them where their last value is to be seen. Gives
  /// them, for the caller to stop.
  std::vector<RunningAnimation> take_ended(double now);

  bool wants_frames() const;
  /// The clock time at which the first of those that run ends; infinity when none does.
  double next_end() const;
  /// Is the size on the screen under way? Then scaled copies are not worth keeping.
  bool is_scaling(double now) const;
  /// May one of them change where the layer is?
  bool may_move() const;
  static bool moves(const RunningAnimation& animation);

  /// Is the layer among the animated ones?
  bool is_listed = false;

 private:
  std::vector<RunningAnimation> animations_;
};

}  // namespace host::quartzcore
