#include "host/uikit/touch/touch_cancelling.h"

#include "host/runtime/run_loop.h"
#include "host/uikit/gesture/gesture_arena.h"
#include "host/uikit/touch/event.h"
#include "host/uikit/touch/touch.h"

namespace host::uikit {

void cancel_touches_in(UIView view, UIGestureRecognizer but_for) {
  const UIEvent event = touches_event();
  Event& told = objc::state_of<Event>(event);
  // Often it is the end of another touch that begins all this.
  const UITouch before = told.changed_touch();
  const double since = told.timestamp();
  const auto touches = GestureArena::shared().touches();
  for (const auto& touch : touches) {
    Touch& state = objc::state_of<Touch>(touch.get());
    if (!state.is_down() || !touch->view().isDescendantOfView(view)) continue;
    if (but_for && state.is_seen_by(but_for)) continue;
    const double now = RunLoop::main().now();
    state.lose(now);
    told.is_about(touch.get(), now);
    GestureArena::shared().dispatch(touch.get(), event);
  }
  told.is_about(before, since);
}

}  // namespace host::uikit
