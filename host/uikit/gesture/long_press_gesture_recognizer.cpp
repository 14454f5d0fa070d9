#include "host/uikit/gesture/long_press_gesture_recognizer.h"

#include <cmath>

#include "host/uikit/touch/touch.h"

namespace host::uikit {

void LongPressGestureRecognizer::touches_began(NSSet, UIEvent) {
  const NSUInteger fingers = self.numberOfTouches();
  if (fingers > touches_required_) return self.setState(UIGestureRecognizerStateFailed);
  if (fingers < touches_required_) return;
  press_.start(minimum_press_duration_, [this] { self.setState(UIGestureRecognizerStateBegan); });
}

void LongPressGestureRecognizer::touches_moved(NSSet touches, UIEvent) {
  if (objc::state_of<GestureRecognizer>(self).is_under_way())
    return self.setState(UIGestureRecognizerStateChanged);
  const auto& touch = objc::state_of<Touch>(touches.anyObject());
  const CGPoint landed = touch.landing_point();
  const CGPoint now = touch.screen_location();
  if (std::hypot(now.x - landed.x, now.y - landed.y) > allowable_movement_)
    self.setState(UIGestureRecognizerStateFailed);
}

void LongPressGestureRecognizer::touches_ended(NSSet, UIEvent) {
  const bool under_way = objc::state_of<GestureRecognizer>(self).is_under_way();
  self.setState(under_way ? UIGestureRecognizerStateEnded : UIGestureRecognizerStateFailed);
}

void LongPressGestureRecognizer::touches_cancelled(NSSet, UIEvent) {
  self.setState(UIGestureRecognizerStateCancelled);
}

void LongPressGestureRecognizer::reset() {
  press_.stop();
  super<>("reset"_sel);
}

void export_long_press_gesture_recognizer() {
  using Press = LongPressGestureRecognizer;
  objc::ClassBuilder("UILongPressGestureRecognizer", "UIGestureRecognizer")
      .state<Press>()
      .method<&Press::number_of_touches_required>("numberOfTouchesRequired")
      .method<&Press::set_number_of_touches_required>("setNumberOfTouchesRequired:")
      .method<&Press::minimum_press_duration>("minimumPressDuration")
      .method<&Press::set_minimum_press_duration>("setMinimumPressDuration:")
      .method<&Press::allowable_movement>("allowableMovement")
      .method<&Press::set_allowable_movement>("setAllowableMovement:")
      .method<&Press::touches_began>("touchesBegan:withEvent:")
      .method<&Press::touches_moved>("touchesMoved:withEvent:")
      .method<&Press::touches_ended>("touchesEnded:withEvent:")
      .method<&Press::touches_cancelled>("touchesCancelled:withEvent:")
      .method<&Press::reset>("reset")
      .finish();
}

}  // namespace host::uikit
