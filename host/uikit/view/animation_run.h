#pragma once

#include <memory>

#include "objc/block.h"
#include "objc/ref.h"

namespace host::uikit {

/// One animation block from its submission to its completion. The completion is called exactly
/// once: when the last of the block's animations has stopped, or in the next turn of the run loop
/// when the block changed nothing that animates.
class AnimationRun : public std::enable_shared_from_this<AnimationRun> {
 public:
  explicit AnimationRun(objc::Block<void(BOOL)> completion) : completion_(completion) {}

  void animation_added() { ++running_; }
  void animation_stopped(bool finished);
  /// Counts as an animation that ends after so many seconds. All changes of the block
  /// that are out of sight share one.
  void unseen_animation_added(double seconds);
  /// The action that they share; nil until it is set, and once the block has been run.
  objc::Ref<objc::Object> unseen_action;
  /// Called when the block has been run; no animation is added afterwards.
  void close();

 private:
  void complete_in_next_turn();

  objc::OwnedBlock<void(BOOL)> completion_;
  int running_ = 0;
  bool has_unseen_ = false;
  bool closed_ = false;
  bool all_finished_ = true;
};

}  // namespace host::uikit
