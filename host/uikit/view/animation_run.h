#pragma once

#include "objc/block.h"

namespace host::uikit {

/// One animation block from its submission to its completion. The completion is called exactly
/// once: when the last of the block's animations has stopped, or in the next turn of the run loop
/// when the block changed nothing that animates.
class AnimationRun {
 public:
  explicit AnimationRun(objc::Block<void(BOOL)> completion) : completion_(completion) {}

  void animation_added() { ++running_; }
  void animation_stopped(bool finished);
  /// Called when the block has been run; no animation is added afterwards.
  void close();

 private:
  void complete_in_next_turn();

  objc::OwnedBlock<void(BOOL)> completion_;
  int running_ = 0;
  bool closed_ = false;
  bool all_finished_ = true;
};

}  // namespace host::uikit
