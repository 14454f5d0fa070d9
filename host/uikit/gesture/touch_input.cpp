#include "host/uikit/gesture/touch_input.h"

#include <cmath>

#include "host/uikit/application/application.h"
#include "host/uikit/gesture/event.h"
#include "host/uikit/gesture/gesture_arena.h"
#include "host/uikit/gesture/system_gestures.h"
#include "host/uikit/gesture/tap_limits.h"
#include "host/uikit/gesture/touch.h"
#include "host/uikit/view/screen_space.h"
#include "host/uikit/view/window_list.h"

namespace host::uikit {
namespace {

/// A view sees one finger at a time unless it asks for more, and an exclusive view shares its
/// window with no other; recognisers see every finger all the same.
bool view_may_take_another(const Hit& hit) {
  for (const auto& touch : GestureArena::shared().touches()) {
    const Touch& present = objc::state_of<Touch>(touch.get());
    if (!present.is_down() || present.window() != hit.window) continue;
    if (present.view() == hit.view) {
      if (!hit.view.isMultipleTouchEnabled()) return false;
    } else if (present.view().isExclusiveTouch() || hit.view.isExclusiveTouch()) {
      return false;
    }
  }
  return true;
}

}  // namespace

NSUInteger TouchInput::count_tap(CGPoint point, double timestamp) {
  const bool soon = timestamp - last_tap_.time <= kLongestTapInterval;
  const bool near =
      std::hypot(point.x - last_tap_.point.x, point.y - last_tap_.point.y) <= kTapAllowableMovement;
  return last_tap_.count > 0 && soon && near ? last_tap_.count + 1 : 1;
}

bool TouchInput::is_the_systems(int finger, UITouchPhase phase, CGPoint screen_point,
                                double timestamp) {
  const auto claim = system_claim(finger, phase, screen_point, timestamp);
  if (claim == SystemGestures::Claim::Windows) return false;
  lift(finger, screen_point, timestamp, UITouchPhaseCancelled);
  return true;
}

void TouchInput::began(int finger, CGPoint screen_point, double timestamp) {
  if (fingers_.contains(finger)) return moved(finger, screen_point, timestamp);
  if (is_the_systems(finger, UITouchPhaseBegan, screen_point, timestamp)) return;
  if (ignores_touches()) return;
  const UIEvent event = touches_event();
  const Hit hit = find_hit(screen_point, event);
  if (!hit.view) return;
  const auto touch = objc::Ref<UITouch>::adopt(UITouch::alloc().init());
  Touch& state = objc::state_of<Touch>(touch.get());
  const NSUInteger taps = count_tap(screen_point, timestamp);
  state.land(hit.window, hit.view, screen_point, timestamp, taps);
  last_tap_ = {screen_point, timestamp, taps};
  if (!view_may_take_another(hit)) state.keep_from_view();
  fingers_.emplace(finger, touch);
  GestureArena::shared().add(touch.get());
  send(touch.get(), timestamp);
}

void TouchInput::moved(int finger, CGPoint screen_point, double timestamp) {
  if (is_the_systems(finger, UITouchPhaseMoved, screen_point, timestamp)) return;
  move(finger, screen_point, timestamp);
}

void TouchInput::move(int finger, CGPoint screen_point, double timestamp) {
  const auto found = fingers_.find(finger);
  if (found == fingers_.end()) return;
  const auto touch = found->second;
  Touch& state = objc::state_of<Touch>(touch.get());
  if (state.is_lost() || state.screen_location() == screen_point) return;
  state.move(screen_point, timestamp);
  send(touch.get(), timestamp);
  if (state.is_down()) state.stand_still();
}

void TouchInput::ended(int finger, CGPoint screen_point, double timestamp) {
  if (is_the_systems(finger, UITouchPhaseEnded, screen_point, timestamp)) return;
  lift(finger, screen_point, timestamp, UITouchPhaseEnded);
}

void TouchInput::cancelled(int finger, CGPoint screen_point, double timestamp) {
  system_claim(finger, UITouchPhaseCancelled, screen_point, timestamp);
  lift(finger, screen_point, timestamp, UITouchPhaseCancelled);
}

void TouchInput::cancel_all(double timestamp) {
  const auto fingers = fingers_;
  for (const auto& [finger, touch] : fingers)
    cancelled(finger, objc::state_of<Touch>(touch.get()).screen_location(), timestamp);
}

void TouchInput::lift(int finger, CGPoint screen_point, double timestamp, UITouchPhase phase) {
  // The way to where the finger left counts, even when nobody reported it.
  move(finger, screen_point, timestamp);
  const auto found = fingers_.find(finger);
  if (found == fingers_.end()) return;
  const auto touch = found->second;
  fingers_.erase(found);
  if (objc::state_of<Touch>(touch.get()).is_lost()) return;
  last_tap_.time = timestamp;
  objc::state_of<Touch>(touch.get()).lift(phase, timestamp);
  send(touch.get(), timestamp);
}

void TouchInput::send(UITouch touch, double timestamp) {
  const UIEvent event = touches_event();
  Event& state = objc::state_of<Event>(event);
  state.is_about(touch, timestamp);
  if (const UIApplication application = UIApplication::sharedApplication()) {
    application.sendEvent(event);
  } else {
    touch.window().sendEvent(event);
  }
  state.is_about(nil, timestamp);
}

}  // namespace host::uikit
