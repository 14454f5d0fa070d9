#pragma once

#include "host/runtime/run_loop.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/QuartzCore/CADisplayLink.h"

namespace host::quartzcore {

/// CADisplayLink: sends one message per frame while it is in a run loop and not paused.
class DisplayLink : public objc::Implementation<DisplayLink, CADisplayLink> {
 public:
  explicit DisplayLink(CADisplayLink owner) : Implementation(owner) {}
  ~DisplayLink();

  void aim(objc::Object target, objc::Sel selector);
  void add_to_run_loop(NSRunLoop loop, NSString mode);
  void remove_from_run_loop(NSRunLoop loop, NSString mode);
  void invalidate();
  double timestamp() const { return timestamp_; }
  double duration() const { return RunLoop::kFrame; }
  NSInteger frame_interval() const { return frame_interval_; }
  void set_frame_interval(NSInteger frames) { frame_interval_ = frames < 1 ? 1 : frames; }
  BOOL is_paused() const { return paused_; }
  void set_paused(BOOL paused);

 private:
  void update();
  void frame(double time);

  objc::Ref<objc::Object> target_;
  objc::Sel selector_ = nullptr;
  bool in_loop_ = false;
  bool paused_ = false;
  NSInteger frame_interval_ = 1;
  NSInteger frames_left_ = 0;
  double timestamp_ = 0;
  RunLoop::Id observer_ = 0;
};

void export_display_link();

}  // namespace host::quartzcore
