#include "host/uikit/view/animation_run.h"

#include <utility>

#include "host/runtime/run_loop.h"

namespace host::uikit {

void AnimationRun::animation_stopped(bool finished) {
  --running_;
  all_finished_ = all_finished_ && finished;
  if (running_ > 0 || !closed_) return;
  const auto completion = std::move(completion_);
  completion_ = {};
  completion.get()(all_finished_ ? YES : NO);
}

void AnimationRun::unseen_animation_added(double seconds) {
  if (std::exchange(has_unseen_, true)) return;
  animation_added();
  RunLoop& loop = RunLoop::main();
  loop.add_timer(loop.now() + seconds, 0,
                 [run = shared_from_this()] { run->animation_stopped(true); });
}

void AnimationRun::close() {
  closed_ = true;
  unseen_action.reset();
  if (running_ == 0) complete_in_next_turn();
}

void AnimationRun::complete_in_next_turn() {
  if (!completion_) return;
  const BOOL finished = all_finished_ ? YES : NO;
  RunLoop::main().perform(
      [completion = std::move(completion_), finished] { completion.get()(finished); });
  completion_ = {};
}

}  // namespace host::uikit
