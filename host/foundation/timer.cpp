#include <cstring>

#include "host/foundation/exports.h"
#include "host/runtime/run_loop.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/Foundation/NSObject.h"

// The platform's timers, on our clock instead of the machine's. They are a subclass of NSTimer, and
// NSTimer's own constructors create them.

namespace host::foundation {
namespace {

struct ClockTimerHandle : objc::Bound<ClockTimerHandle, "__NSCFTimer", NSObject> {};

// The platform's shortest interval, in seconds. A repeating timer with interval 0 would block the
// loop.
constexpr double kShortestInterval = 0.0001;
// The share of its interval by which a repeating timer may be late. Later ticks come at their own
// times.
constexpr double kTolerance = 0.1;

class ClockTimer : public objc::Implementation<ClockTimer, ClockTimerHandle> {
 public:
  using Implementation::Implementation;
  ~ClockTimer() { stop(); }

  void prepare(double interval, objc::Object target, objc::Sel action, objc::Object user_info,
               BOOL repeats) {
    interval_ = interval > 0 ? interval : kShortestInterval;
    target_.reset(target);
    action_ = action;
    // An action without an argument is as valid as one that takes the timer.
    takes_timer_ = std::strchr(sel_getName(action), ':') ? YES : NO;
    user_info_.reset(user_info);
    repeats_ = repeats;
  }

  void schedule() {
    if (scheduled_ || !valid_) return;
    // The loop retains the timer until it is invalidated; the timer retains its target.
    held_by_loop_.reset(self);
    const double repeat = repeats_ ? interval_ : 0;
    scheduled_ = RunLoop::main().add_timer(
        RunLoop::main().now() + interval_, repeat, [this] { fire(); }, repeat * kTolerance);
  }

  void fire() {
    if (!valid_) return;
    const auto alive = objc::Ref<ClockTimerHandle>::retain(self);
    if (takes_timer_) {
      objc::send<>(target_.get(), action_, objc::Object(self));
    } else {
      objc::send<>(target_.get(), action_);
    }
    if (!repeats_) objc::send<>(self, "invalidate"_sel);
  }

  void invalidate() {
    if (!valid_) return;
    const auto alive = objc::Ref<ClockTimerHandle>::retain(self);
    stop();
    valid_ = NO;
    target_.reset();
    user_info_.reset();
    held_by_loop_.reset();
  }

  BOOL is_valid() { return valid_; }
  double interval() { return repeats_ ? interval_ : 0; }
  objc::Object user_info() { return user_info_.get(); }

 private:
  void stop() {
    if (scheduled_ && RunLoop::has_main()) RunLoop::main().remove_timer(scheduled_);
    scheduled_ = 0;
  }

  double interval_ = 0;
  objc::Ref<objc::Object> target_;
  objc::Ref<objc::Object> user_info_;
  objc::Ref<ClockTimerHandle> held_by_loop_;
  objc::Sel action_ = nullptr;
  BOOL takes_timer_ = NO;
  BOOL repeats_ = NO;
  BOOL valid_ = YES;
  RunLoop::Id scheduled_ = 0;
};

objc::Object timer_with_interval(objc::Object, double interval, objc::Object target,
                                 objc::Sel action, objc::Object user_info, BOOL repeats) {
  const auto timer = ClockTimerHandle::alloc().autorelease();
  objc::state_of<ClockTimer>(timer).prepare(interval, target, action, user_info, repeats);
  return timer;
}

objc::Object scheduled_timer_with_interval(objc::Object cls, double interval, objc::Object target,
                                           objc::Sel action, objc::Object user_info, BOOL repeats) {
  const auto timer = timer_with_interval(cls, interval, target, action, user_info, repeats);
  objc::state_of<ClockTimer>(timer).schedule();
  return timer;
}

void add_timer_to_run_loop(objc::Object, objc::Object timer, objc::Object) {
  const auto object = objc::cast<NSObject>(timer);
  if (object && object.isKindOfClass(ClockTimerHandle::cls()))
    objc::state_of<ClockTimer>(timer).schedule();
}

void perform_after_delay(objc::Object receiver, objc::Sel selector, objc::Object argument,
                         double delay) {
  const auto target = objc::Ref<objc::Object>::retain(receiver);
  const auto kept = objc::Ref<objc::Object>::retain(argument);
  RunLoop& loop = RunLoop::main();
  loop.add_timer(loop.now() + delay, 0,
                 [target, kept, selector] { objc::send<>(target.get(), selector, kept.get()); });
}

}  // namespace

void export_timers() {
  if (objc_getClass("__NSCFTimer")) return;
  objc::ClassBuilder("__NSCFTimer", "NSTimer")
      .state<ClockTimer>()
      .method<&ClockTimer::fire>("fire")
      .method<&ClockTimer::invalidate>("invalidate")
      .method<&ClockTimer::is_valid>("isValid")
      .method<&ClockTimer::interval>("timeInterval")
      .method<&ClockTimer::user_info>("userInfo")
      .finish();

  const objc::Class timers = objc_getMetaClass("NSTimer");
  objc::replace_method<&timer_with_interval>(
      timers, "timerWithTimeInterval:target:selector:userInfo:repeats:");
  objc::replace_method<&scheduled_timer_with_interval>(
      timers, "scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:");
  objc::replace_method<&add_timer_to_run_loop>(objc_getClass("NSRunLoop"), "addTimer:forMode:");
  objc::replace_method<&perform_after_delay>(objc_getClass("NSObject"),
                                             "performSelector:withObject:afterDelay:");
}

}  // namespace host::foundation
