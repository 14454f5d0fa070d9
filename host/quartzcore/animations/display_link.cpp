#include "host/quartzcore/animations/display_link.h"

namespace host::quartzcore {
namespace {

CADisplayLink with_target(objc::Object cls, objc::Object target, objc::Sel selector) {
  const auto link =
      objc::send<CADisplayLink>(objc::send<CADisplayLink>(cls, "alloc"_sel), "init"_sel);
  objc::state_of<DisplayLink>(link).aim(target, selector);
  return link.autorelease();
}

}  // namespace

DisplayLink::~DisplayLink() {
  if (observer_ && RunLoop::has_main()) RunLoop::main().remove_frame_observer(observer_);
}

void DisplayLink::aim(objc::Object target, objc::Sel selector) {
  target_.reset(target);
  selector_ = selector;
}

// The run loop retains a link for as long as the link is added to it.
void DisplayLink::add_to_run_loop(NSRunLoop, NSString) {
  if (in_loop_ || !target_) return;
  self.retain();
  in_loop_ = true;
  update();
}

void DisplayLink::remove_from_run_loop(NSRunLoop, NSString) {
  if (!in_loop_) return;
  in_loop_ = false;
  update();
  self.autorelease();
}

void DisplayLink::invalidate() {
  self.removeFromRunLoop(nil, nil);
  target_.reset();
}

void DisplayLink::set_paused(BOOL paused) {
  paused_ = paused != NO;
  update();
}

void DisplayLink::update() {
  const bool wanted = in_loop_ && !paused_;
  if (wanted && !observer_) {
    frames_left_ = 0;
    observer_ = RunLoop::main().add_frame_observer([this](double time) { frame(time); });
  } else if (!wanted && observer_) {
    RunLoop::main().remove_frame_observer(observer_);
    observer_ = 0;
  }
}

void DisplayLink::frame(double time) {
  if (frames_left_-- > 0) return;
  frames_left_ = frame_interval_ - 1;
  timestamp_ = time;
  // The message may remove the link from the loop and release the target.
  const auto link = objc::Ref<CADisplayLink>::retain(self);
  const auto target = target_;
  objc::send<>(target.get(), selector_, link.get());
}

void export_display_link() {
  objc::ClassBuilder("CADisplayLink", "NSObject")
      .state<DisplayLink>()
      .class_method<&with_target>("displayLinkWithTarget:selector:")
      .method<&DisplayLink::add_to_run_loop>("addToRunLoop:forMode:")
      .method<&DisplayLink::remove_from_run_loop>("removeFromRunLoop:forMode:")
      .method<&DisplayLink::invalidate>("invalidate")
      .method<&DisplayLink::timestamp>("timestamp")
      .method<&DisplayLink::duration>("duration")
      .method<&DisplayLink::frame_interval>("frameInterval")
      .method<&DisplayLink::set_frame_interval>("setFrameInterval:")
      .method<&DisplayLink::is_paused>("isPaused")
      .method<&DisplayLink::set_paused>("setPaused:")
      .finish();
}

}  // namespace host::quartzcore
