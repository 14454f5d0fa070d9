#include "host/quartzcore/animations/animation_delegate.h"

#include <utility>

#include "host/quartzcore/animations/delegate.h"
#include "host/runtime/run_loop.h"

namespace host::quartzcore {
namespace {

objc::Object listener_of(const RunningAnimation& animation) {
  return animation.object ? animation.object->delegate() : animation.listener.get();
}

/// Notifies `listener` of the end of `animation`. An animation without an object (null) has one of
/// our own listeners, which always implements the message.
void notify_stop(objc::Object listener, const objc::Ref<CAAnimation>& animation, BOOL finished) {
  if (!animation || answers(listener, "animationDidStop:finished:"_sel))
    objc::send<>(listener, "animationDidStop:finished:"_sel, animation.get(), finished);
}

}  // namespace

bool observes_start(const RunningAnimation& animation) {
  return animation.object && answers(animation.object->delegate(), "animationDidStart:"_sel);
}

void notify_starts(const std::vector<RunningAnimation>& started) {
  for (const RunningAnimation& animation : started) {
    const objc::Object listener = listener_of(animation);
    if (answers(listener, "animationDidStart:"_sel))
      objc::send<>(listener, "animationDidStart:"_sel, animation.object.get());
  }
}

void stop_animation(RunningAnimation& animation, BOOL finished, Notify when) {
  if (std::exchange(animation.has_stopped, true)) return;
  animation.group.reset();
  const auto listener = objc::Ref<objc::Object>::retain(listener_of(animation));
  if (when == Notify::AtOnce) {
    notify_stop(listener.get(), animation.object, finished);
  } else if (RunLoop::has_main()) {
    RunLoop::main().perform([listener, object = animation.object, finished] {
      notify_stop(listener.get(), object, finished);
    });
  }
}

}  // namespace host::quartzcore
