#include "host/uikit/gesture/pan_gesture_recognizer.h"

#include <cmath>

#include "host/uikit/geometry/screen_space.h"
#include "host/uikit/touch/touch.h"

namespace host::uikit {

PanGestureRecognizer::Fingers PanGestureRecognizer::fingers_down() const {
  Fingers fingers;
  for (const auto& touch : objc::state_of<GestureRecognizer>(self).touches()) {
    const Touch& state = objc::state_of<Touch>(touch.get());
    if (!state.is_down()) continue;
    fingers.middle.x += state.screen_location().x;
    fingers.middle.y += state.screen_location().y;
    ++fingers.count;
  }
  if (fingers.count > 0) {
    fingers.middle.x /= static_cast<double>(fingers.count);
    fingers.middle.y /= static_cast<double>(fingers.count);
  }
  return fingers;
}

bool PanGestureRecognizer::is_under_way() const {
  return objc::state_of<GestureRecognizer>(self).is_under_way();
}

/// When the number of fingers changes, their middle jumps: continues the gesture from the new
/// middle without a jump.
void PanGestureRecognizer::continue_from(CGPoint middle, double time) {
  if (has_start_) {
    start_ = {start_.x + middle.x - latest_.x, start_.y + middle.y - latest_.y};
  } else {
    start_ = middle;
    has_start_ = true;
  }
  latest_ = middle;
  latest_time_ = time;
  velocity_.clear();
  velocity_.add(middle, time);
}

CGPoint PanGestureRecognizer::translation_in_view(UIView view) const {
  if (!has_start_) return {};
  return vector_from_screen(view ? view : self.view(),
                            {latest_.x - start_.x, latest_.y - start_.y});
}

void PanGestureRecognizer::set_translation(CGPoint translation, UIView view) {
  const CGPoint on_screen = vector_to_screen(view ? view : self.view(), translation);
  start_ = {latest_.x - on_screen.x, latest_.y - on_screen.y};
}

CGPoint PanGestureRecognizer::velocity_in_view(UIView view) const {
  return vector_from_screen(view ? view : self.view(), velocity_.velocity(latest_time_));
}

void PanGestureRecognizer::touches_began(NSSet touches, UIEvent event) {
  const auto touch = objc::cast<UITouch>(touches.anyObject());
  if (self.numberOfTouches() > maximum_touches_) {
    if (is_under_way()) {
      self.ignoreTouch(touch, event);
    } else {
      self.setState(UIGestureRecognizerStateFailed);
    }
    return;
  }
  continue_from(fingers_down().middle, touch.timestamp());
}

void PanGestureRecognizer::touches_moved(NSSet touches, UIEvent) {
  const Fingers fingers = fingers_down();
  latest_ = fingers.middle;
  latest_time_ = objc::cast<UITouch>(touches.anyObject()).timestamp();
  velocity_.add(latest_, latest_time_);
  if (is_under_way()) return self.setState(UIGestureRecognizerStateChanged);
  const double travelled = std::hypot(latest_.x - start_.x, latest_.y - start_.y);
  if (fingers.count >= minimum_touches_ && travelled >= kPanThreshold)
    self.setState(UIGestureRecognizerStateBegan);
}

void PanGestureRecognizer::touches_ended(NSSet touches, UIEvent) {
  const double time = objc::cast<UITouch>(touches.anyObject()).timestamp();
  const Fingers left = fingers_down();
  if (left.count > 0 && left.count >= minimum_touches_) return continue_from(left.middle, time);
  if (!is_under_way() && left.count > 0) return continue_from(left.middle, time);
  latest_time_ = time;
  self.setState(is_under_way() ? UIGestureRecognizerStateEnded : UIGestureRecognizerStateFailed);
}

void PanGestureRecognizer::touches_cancelled(NSSet, UIEvent) {
  self.setState(UIGestureRecognizerStateCancelled);
}

void PanGestureRecognizer::reset() {
  has_start_ = false;
  velocity_.clear();
  super<>("reset"_sel);
}

void export_pan_gesture_recognizer() {
  objc::ClassBuilder("UIPanGestureRecognizer", "UIGestureRecognizer")
      .state<PanGestureRecognizer>()
      .method<&PanGestureRecognizer::minimum_number_of_touches>("minimumNumberOfTouches")
      .method<&PanGestureRecognizer::set_minimum_number_of_touches>("setMinimumNumberOfTouches:")
      .method<&PanGestureRecognizer::maximum_number_of_touches>("maximumNumberOfTouches")
      .method<&PanGestureRecognizer::set_maximum_number_of_touches>("setMaximumNumberOfTouches:")
      .method<&PanGestureRecognizer::translation_in_view>("translationInView:")
      .method<&PanGestureRecognizer::set_translation>("setTranslation:inView:")
      .method<&PanGestureRecognizer::velocity_in_view>("velocityInView:")
      .method<&PanGestureRecognizer::touches_began>("touchesBegan:withEvent:")
      .method<&PanGestureRecognizer::touches_moved>("touchesMoved:withEvent:")
      .method<&PanGestureRecognizer::touches_ended>("touchesEnded:withEvent:")
      .method<&PanGestureRecognizer::touches_cancelled>("touchesCancelled:withEvent:")
      .method<&PanGestureRecognizer::reset>("reset")
      .finish();
}

}  // namespace host::uikit
