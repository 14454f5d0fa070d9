#include "host/uikit/touch/touch.h"

#include "host/uikit/geometry/screen_space.h"
#include "platform/UIKit/UIGestureRecognizer.h"

namespace host::uikit {

NSArray Touch::gesture_recognizers() const {
  std::vector<objc::Object> objects;
  for (const auto& recognizer : recognizers_)
    objects.push_back(recognizer.get());
  return NSArray::arrayWithObjects(objects.data(), objects.size());
}

CGPoint Touch::location_in_view(UIView view) const {
  return from_screen(view ? view : window_.get(), location_);
}

CGPoint Touch::previous_location_in_view(UIView view) const {
  return from_screen(view ? view : window_.get(), previous_location_);
}

void Touch::land(UIWindow window, UIView view, CGPoint point, double timestamp,
                 NSUInteger tap_count) {
  window_.reset(window);
  view_.reset(view);
  landing_point_ = location_ = previous_location_ = point;
  timestamp_ = timestamp;
  tap_count_ = tap_count;
}

void Touch::move(CGPoint point, double timestamp) {
  previous_location_ = location_;
  location_ = point;
  timestamp_ = timestamp;
  phase_ = UITouchPhaseMoved;
  move_untold_ = true;
}

void Touch::lift(UITouchPhase phase, double timestamp) {
  previous_location_ = location_;
  timestamp_ = timestamp;
  phase_ = phase;
}

bool Touch::is_seen_by(UIGestureRecognizer recognizer) const {
  return std::any_of(recognizers_.begin(), recognizers_.end(),
                     [recognizer](const auto& seen) { return seen.get() == recognizer; });
}

void Touch::forget(UIGestureRecognizer recognizer) {
  std::erase_if(recognizers_,
                [recognizer](const auto& present) { return present.get() == recognizer; });
}

void Touch::tell(UITouchPhase phase, UIEvent event) {
  const auto kept = objc::Ref<UITouch>::retain(self);
  const auto view = view_;
  const NSSet touches = NSSet::setWithObject(self);
  told_phase_ = &phase;
  switch (phase) {
    case UITouchPhaseBegan:
      view->touchesBegan(touches, event);
      break;
    case UITouchPhaseEnded:
      view->touchesEnded(touches, event);
      break;
    case UITouchPhaseCancelled:
      view->touchesCancelled(touches, event);
      break;
    default:
      view->touchesMoved(touches, event);
      break;
  }
  told_phase_ = nullptr;
}

void Touch::deliver(UIEvent event, IsUndecided is_undecided) {
  const auto any_holds_back = [&](auto delays) {
    return std::any_of(recognizers_.begin(), recognizers_.end(), [&](const auto& recognizer) {
      return is_undecided(recognizer.get()) && delays(recognizer.get());
    });
  };
  if (delivery_ == Delivery::kNothing) {
    if (any_holds_back([](UIGestureRecognizer r) { return r.delaysTouchesBegan(); })) return;
    delivery_ = Delivery::kBegan;
    tell(UITouchPhaseBegan, event);
  }
  if (delivery_ == Delivery::kBegan && move_untold_) {
    move_untold_ = false;
    tell(UITouchPhaseMoved, event);
  }
  if (delivery_ != Delivery::kBegan || is_down()) return;
  if (phase_ == UITouchPhaseEnded &&
      any_holds_back([](UIGestureRecognizer r) { return r.delaysTouchesEnded(); })) {
    return;
  }
  delivery_ = Delivery::kOver;
  tell(phase_, event);
}

void Touch::cancel_in_view(UIEvent event) {
  const bool was_told = delivery_ == Delivery::kBegan;
  delivery_ = Delivery::kOver;
  if (was_told) tell(UITouchPhaseCancelled, event);
}

void export_touch() {
  objc::ClassBuilder("UITouch", "NSObject")
      .state<Touch>()
      .method<&Touch::timestamp>("timestamp")
      .method<&Touch::phase>("phase")
      .method<&Touch::tap_count>("tapCount")
      .method<&Touch::window>("window")
      .method<&Touch::view>("view")
      .method<&Touch::gesture_recognizers>("gestureRecognizers")
      .method<&Touch::location_in_view>("locationInView:")
      .method<&Touch::previous_location_in_view>("previousLocationInView:")
      .finish();
}

}  // namespace host::uikit
