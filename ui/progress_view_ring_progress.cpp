#include "platform/Dispatch/dispatch_queue.h"
#include "ui/progress_view_ring.h"

namespace sonavue {

void ProgressViewRing::set_progress(float progress, BOOL animated) {
  if (progress == self.progress()) return;
  if (!animated) {
    drop_display_link();
    store_progress(progress);
    return;
  }
  // A display link that is already running continues with the new values: the arc moves to the new
  // target from its current position.
  animation_start_time_ = CACurrentMediaTime();
  animation_from_value_ = self.progress();
  animation_to_value_ = progress;
  if (display_link_) return;
  display_link_.reset(CADisplayLink::displayLinkWithTarget(self, "animateProgress:"_sel));
  display_link_->addToRunLoop(NSRunLoop::mainRunLoop(), NSRunLoopCommonModes);
}

void ProgressViewRing::animate_progress(CADisplayLink link) {
  const auto ring = objc::Ref<M13ProgressViewRing>::retain(self);
  const auto frame = objc::Ref<CADisplayLink>::retain(link);
  dispatch_async(dispatch_get_main_queue(), objc::block([ring, frame] {
                   auto& state = objc::state_of<ProgressViewRing>(ring.get());
                   // A change without animation may have stopped the link after this frame was
                   // queued.
                   if (state.display_link_.get() == frame.get())
                     state.show_frame_at(frame->timestamp());
                 }));
}

void ProgressViewRing::show_frame_at(double time) {
  const double t = (time - animation_start_time_) / self.animationDuration();
  // Written as a negation so that NaN, from zero divided by a zero duration, also counts as the
  // end.
  if (!(t < 1)) {
    drop_display_link();
    store_progress(animation_to_value_);
    return;
  }
  const float distance = animation_to_value_ - animation_from_value_;
  store_progress(static_cast<float>(animation_from_value_ + t * distance));
}

void ProgressViewRing::store_progress(float progress) {
  super<>("setProgress:animated:"_sel, progress, NO);
  self.setNeedsDisplay();
}

void ProgressViewRing::drop_display_link() {
  display_link_->removeFromRunLoop(NSRunLoop::mainRunLoop(), NSRunLoopCommonModes);
  display_link_.reset();
}

}  // namespace sonavue
