#include "host/uikit/touch/event.h"

#include "host/uikit/touch/present_touches.h"
#include "host/uikit/touch/touch.h"

namespace host::uikit {
namespace {

template <class Wanted>
NSSet touches_where(Wanted wanted) {
  const NSMutableSet found = NSMutableSet::set();
  for (const auto& touch : touches_on_screen()) {
    if (wanted(objc::state_of<Touch>(touch.get()))) found.addObject(touch.get());
  }
  return found;
}

}  // namespace

NSSet Event::all_touches() const {
  return touches_where([](const Touch&) { return true; });
}
NSSet Event::touches_for_window(UIWindow window) const {
  return touches_where([window](const Touch& touch) { return touch.window() == window; });
}
NSSet Event::touches_for_view(UIView view) const {
  return touches_where([view](const Touch& touch) { return touch.view() == view; });
}
NSSet Event::touches_for_gesture_recognizer(UIGestureRecognizer recognizer) const {
  return touches_where([recognizer](const Touch& touch) { return touch.is_seen_by(recognizer); });
}

UIEvent touches_event() {
  static const UIEvent event = UIEvent::alloc().init();
  return event;
}

void export_event() {
  objc::ClassBuilder("UIEvent", "NSObject")
      .state<Event>()
      .method<&Event::type>("type")
      .method<&Event::timestamp>("timestamp")
      .method<&Event::all_touches>("allTouches")
      .method<&Event::touches_for_window>("touchesForWindow:")
      .method<&Event::touches_for_view>("touchesForView:")
      .method<&Event::touches_for_gesture_recognizer>("touchesForGestureRecognizer:")
      .finish();
}

}  // namespace host::uikit
