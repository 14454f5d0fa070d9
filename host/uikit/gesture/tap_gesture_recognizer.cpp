#include "host/uikit/gesture/tap_gesture_recognizer.h"

#include <algorithm>
#include <cmath>

#include "host/uikit/touch/tap_limits.h"
#include "host/uikit/touch/touch.h"

namespace host::uikit {

NSUInteger TapGestureRecognizer::fingers_down() const {
  const auto& touches = objc::state_of<GestureRecognizer>(self).touches();
  return static_cast<NSUInteger>(std::count_if(
      touches.begin(), touches.end(),
      [](const auto& touch) { return objc::state_of<Touch>(touch.get()).is_down(); }));
}

bool TapGestureRecognizer::is_far_from_first_tap(CGPoint point) const {
  return std::hypot(point.x - first_tap_.x, point.y - first_tap_.y) > kTapAllowableMovement;
}

void TapGestureRecognizer::touches_began(NSSet touches, UIEvent) {
  const auto touch = objc::cast<UITouch>(touches.anyObject());
  const CGPoint point = objc::state_of<Touch>(touch).landing_point();
  const NSUInteger fingers = fingers_down();
  if (fingers > touches_required_) return fail();
  if (taps_ == 0 && most_fingers_ == 0) first_tap_ = point;
  if (touches_required_ == 1 && is_far_from_first_tap(point)) return fail();
  most_fingers_ = std::max(most_fingers_, fingers);
  limit_.start(kLongestTap, [this] { fail(); });
}

void TapGestureRecognizer::touches_moved(NSSet touches, UIEvent) {
  const auto& touch = objc::state_of<Touch>(touches.anyObject());
  const CGPoint landed = touch.landing_point();
  const CGPoint now = touch.screen_location();
  if (std::hypot(now.x - landed.x, now.y - landed.y) > kTapAllowableMovement) fail();
}

void TapGestureRecognizer::touches_ended(NSSet, UIEvent) {
  if (fingers_down() > 0) return;
  if (most_fingers_ < touches_required_) return fail();
  most_fingers_ = 0;
  ++taps_;
  if (taps_ < taps_required_) {
    limit_.start(kLongestTapInterval, [this] { fail(); });
    return;
  }
  limit_.stop();
  self.setState(UIGestureRecognizerStateEnded);
}

void TapGestureRecognizer::touches_cancelled(NSSet, UIEvent) {
  fail();
}

void TapGestureRecognizer::reset() {
  limit_.stop();
  taps_ = 0;
  most_fingers_ = 0;
  super<>("reset"_sel);
}

BOOL TapGestureRecognizer::can_prevent(UIGestureRecognizer other) {
  // A single tap is recognised on the way to a double tap; a caller that wants only one of the two
  // declares which must fail first.
  const bool is_tap = other.isKindOfClass(UITapGestureRecognizer::cls());
  if (is_tap && objc::cast<UITapGestureRecognizer>(other).numberOfTapsRequired() > taps_required_)
    return NO;
  return super<BOOL>("canPreventGestureRecognizer:"_sel, other);
}

void export_tap_gesture_recognizer() {
  objc::ClassBuilder("UITapGestureRecognizer", "UIGestureRecognizer")
      .state<TapGestureRecognizer>()
      .method<&TapGestureRecognizer::number_of_taps_required>("numberOfTapsRequired")
      .method<&TapGestureRecognizer::set_number_of_taps_required>("setNumberOfTapsRequired:")
      .method<&TapGestureRecognizer::number_of_touches_required>("numberOfTouchesRequired")
      .method<&TapGestureRecognizer::set_number_of_touches_required>("setNumberOfTouchesRequired:")
      .method<&TapGestureRecognizer::touches_began>("touchesBegan:withEvent:")
      .method<&TapGestureRecognizer::touches_moved>("touchesMoved:withEvent:")
      .method<&TapGestureRecognizer::touches_ended>("touchesEnded:withEvent:")
      .method<&TapGestureRecognizer::touches_cancelled>("touchesCancelled:withEvent:")
      .method<&TapGestureRecognizer::reset>("reset")
      .method<&TapGestureRecognizer::can_prevent>("canPreventGestureRecognizer:")
      .finish();
}

}  // namespace host::uikit
