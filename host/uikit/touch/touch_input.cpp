#include "host/uikit/touch/touch_input.h"

#include <cmath>
#include <utility>
#include <vector>

#include "host/runtime/run_loop.h"
#include "host/uikit/geometry/screen_space.h"
#include "host/uikit/touch/event.h"
#include "host/uikit/touch/present_touches.h"
#include "host/uikit/touch/system_gestures.h"
#include "host/uikit/touch/tap_limits.h"
#include "host/uikit/touch/touch.h"
#include "platform/UIKit/UIApplication.h"

namespace host::uikit {
namespace {

// All inputs of the process; together they serve one screen.
std::vector<TouchInput*> inputs;
bool touches_enabled = true;

void take_away_from_all(TouchInput::Reach reach) {
  const auto present = inputs;
  for (TouchInput* input : present)
    input->take_away(reach, RunLoop::main().now());
}

/// Returns whether the application currently ignores fingers.
bool ignores_touches() {
  return UIApplication::sharedApplication().isIgnoringInteractionEvents() == YES;
}

/// A view sees one finger at a time unless it enables multiple touch, and an exclusive view shares
/// its window with no other view. Recognisers see every finger regardless.
bool view_may_take_another(const Hit& hit) {
  for (const auto& touch : present_touches()) {
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

TouchInput::TouchInput() {
  inputs.push_back(this);
}

TouchInput::~TouchInput() {
  std::erase(inputs, this);
}

NSUInteger TouchInput::count_tap(CGPoint point, double timestamp) {
  const bool soon = timestamp - last_tap_.time <= kLongestTapInterval;
  const bool near =
      std::hypot(point.x - last_tap_.point.x, point.y - last_tap_.point.y) <= kTapAllowableMovement;
  return last_tap_.count > 0 && soon && near ? last_tap_.count + 1 : 1;
}

bool TouchInput::goes_to_windows(int finger, UITouchPhase phase, CGPoint screen_point,
                                 double timestamp) {
  const auto found = fingers_.find(finger);
  if (found == fingers_.end() || found->second.owner == Owner::None) return false;
  found->second.point = screen_point;
  const auto before = std::exchange(shown_, finger);
  const auto claim = system_claim(finger, phase, screen_point, timestamp);
  shown_ = before;
  if (claim == SystemGestures::Claim::System) {
    found->second.owner = Owner::System;
    cancel(found->second, timestamp);
  } else if (found->second.owner == Owner::None) {
    // It was taken away while the gestures saw it.
    system_claim(finger, UITouchPhaseCancelled, screen_point, timestamp);
  }
  return found->second.owner == Owner::Windows;
}

void TouchInput::began(int finger, CGPoint screen_point, double timestamp) {
  if (fingers_.contains(finger)) return moved(finger, screen_point, timestamp);
  const Owner owner = touches_enabled ? Owner::Windows : Owner::None;
  fingers_[finger] = {owner, screen_point, {}};
  if (goes_to_windows(finger, UITouchPhaseBegan, screen_point, timestamp) && !ignores_touches())
    land(finger, screen_point, timestamp);
}

void TouchInput::land(int finger, CGPoint screen_point, double timestamp) {
  const Hit hit = find_hit(screen_point, touches_event());
  if (!hit.view) return;
  const auto touch = objc::Ref<UITouch>::adopt(UITouch::alloc().init());
  Touch& state = objc::state_of<Touch>(touch.get());
  const NSUInteger taps = count_tap(screen_point, timestamp);
  state.land(hit.window, hit.view, screen_point, timestamp, taps);
  last_tap_ = {screen_point, timestamp, taps};
  if (!view_may_take_another(hit)) state.keep_from_view();
  fingers_[finger].touch = touch;
  add_present_touch(touch.get());
  send(touch.get(), timestamp);
}

void TouchInput::moved(int finger, CGPoint screen_point, double timestamp) {
  if (goes_to_windows(finger, UITouchPhaseMoved, screen_point, timestamp))
    move(finger, screen_point, timestamp);
}

void TouchInput::move(int finger, CGPoint screen_point, double timestamp) {
  const auto touch = fingers_[finger].touch;
  if (!touch) return;
  Touch& state = objc::state_of<Touch>(touch.get());
  if (state.screen_location() == screen_point) return;
  state.move(screen_point, timestamp);
  send(touch.get(), timestamp);
  if (state.is_down()) state.stand_still();
}

void TouchInput::ended(int finger, CGPoint screen_point, double timestamp) {
  // The path to the point of lifting counts even when that movement was never reported.
  if (goes_to_windows(finger, UITouchPhaseEnded, screen_point, timestamp))
    move(finger, screen_point, timestamp);
  forget(finger, UITouchPhaseEnded, timestamp);
}

void TouchInput::cancelled(int finger, CGPoint screen_point, double timestamp) {
  const auto found = fingers_.find(finger);
  if (found == fingers_.end()) return;
  if (found->second.owner != Owner::None)
    system_claim(finger, UITouchPhaseCancelled, screen_point, timestamp);
  move(finger, screen_point, timestamp);
  forget(finger, UITouchPhaseCancelled, timestamp);
}

void TouchInput::cancel_all(double timestamp) {
  while (!fingers_.empty())
    cancelled(fingers_.begin()->first, fingers_.begin()->second.point, timestamp);
}

void TouchInput::take_away(Reach reach, double timestamp) {
  for (auto& [number, finger] : fingers_) {
    const bool is_out_of_reach = finger.owner == Owner::System && reach == Reach::Windows;
    if (finger.owner == Owner::None || is_out_of_reach) continue;
    finger.owner = Owner::None;
    cancel(finger, timestamp);
    // Gestures that are seeing the finger right now decide themselves whether they claim it.
    if (number != shown_) system_claim(number, UITouchPhaseCancelled, finger.point, timestamp);
  }
}

void TouchInput::take_away_from(UIView view, UIGestureRecognizer but_for, double timestamp) {
  for (auto& [number, finger] : fingers_) {
    if (!finger.touch || !finger.touch->view().isDescendantOfView(view)) continue;
    if (but_for && objc::state_of<Touch>(finger.touch.get()).is_seen_by(but_for)) continue;
    cancel(finger, timestamp);
  }
}

void TouchInput::forget(int finger, UITouchPhase phase, double timestamp) {
  const auto touch = std::exchange(fingers_[finger].touch, {});
  fingers_.erase(finger);
  if (touch) end(touch.get(), phase, timestamp);
}

void TouchInput::cancel(Finger& finger, double timestamp) {
  const auto touch = std::exchange(finger.touch, {});
  if (touch) end(touch.get(), UITouchPhaseCancelled, timestamp);
}

void TouchInput::end(UITouch touch, UITouchPhase phase, double timestamp) {
  Touch& state = objc::state_of<Touch>(touch);
  last_tap_.time = timestamp;
  if (phase == UITouchPhaseCancelled) last_tap_.count = 0;
  state.lift(phase, timestamp);
  send(touch, timestamp);
}

void TouchInput::send(UITouch touch, double timestamp) {
  const UIEvent event = touches_event();
  Event& state = objc::state_of<Event>(event);
  // A receiver of one touch may cause another to be cancelled before it returns.
  const UITouch before = state.changed_touch();
  state.set_changed_touch(touch, timestamp);
  if (const UIApplication application = UIApplication::sharedApplication()) {
    application.sendEvent(event);
  } else {
    touch.window().sendEvent(event);
  }
  state.set_changed_touch(before, timestamp);
}

Hit hit_of_pointer(CGPoint screen_point) {
  if (!touches_enabled || ignores_touches()) return {};
  return find_hit(screen_point, touches_event());
}

void cancel_every_touch() {
  take_away_from_all(TouchInput::Reach::Windows);
}

void cancel_touches_in(UIView view, UIGestureRecognizer but_for) {
  const auto present = inputs;
  for (TouchInput* input : present)
    input->take_away_from(view, but_for, RunLoop::main().now());
}

void set_touches_enabled(bool enabled) {
  touches_enabled = enabled;
  if (!enabled) take_away_from_all(TouchInput::Reach::All);
}

}  // namespace host::uikit
