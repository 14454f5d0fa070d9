#include "host/uikit/gesture/gesture_recognizer.h"

#include <algorithm>

#include "host/uikit/geometry/screen_space.h"
#include "host/uikit/gesture/action_message.h"
#include "host/uikit/gesture/gesture_arena.h"
#include "host/uikit/touch/touch.h"

namespace host::uikit {

UIGestureRecognizer GestureRecognizer::init() {
  return self.initWithTarget(nil, nullptr);
}

UIGestureRecognizer GestureRecognizer::init_with_target(objc::Object target, objc::Sel action) {
  if (!super<UIGestureRecognizer>("init"_sel)) return nil;
  self.addTarget(target, action);
  return self;
}

void GestureRecognizer::add_target(objc::Object target, objc::Sel action) {
  if (target && action) targets_.push_back({target, action});
}

void GestureRecognizer::remove_target(objc::Object target, objc::Sel action) {
  std::erase_if(targets_, [=](const Target& present) {
    return (!target || present.object == target) && (!action || present.action == action);
  });
}

void GestureRecognizer::set_enabled(BOOL enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  if (!enabled) abandon();
}

void GestureRecognizer::require_to_fail(UIGestureRecognizer other) {
  required_failures_.push_back(other);
}

CGPoint GestureRecognizer::screen_location() const {
  if (touches_.empty()) return last_location_;
  CGPoint sum;
  for (const auto& touch : touches_) {
    const CGPoint location = objc::state_of<Touch>(touch.get()).screen_location();
    sum = {sum.x + location.x, sum.y + location.y};
  }
  const auto count = static_cast<double>(touches_.size());
  return {sum.x / count, sum.y / count};
}

CGPoint GestureRecognizer::location_in_view(UIView view) const {
  return from_screen(view ? view : UIView(view_.window()), screen_location());
}

CGPoint GestureRecognizer::location_of_touch(NSUInteger index, UIView view) const {
  if (index >= touches_.size()) return self.locationInView(view);
  return touches_[index]->locationInView(view);
}

void GestureRecognizer::ignore_touch(UITouch touch, UIEvent) {
  std::erase_if(touches_, [touch](const auto& present) { return present.get() == touch; });
  objc::state_of<Touch>(touch).forget(self);
}

void GestureRecognizer::set_state(UIGestureRecognizerState wanted) {
  const auto kept = objc::Ref<UIGestureRecognizer>::retain(self);
  switch (wanted) {
    case UIGestureRecognizerStatePossible:
      if (is_over()) state_ = wanted;
      return;
    case UIGestureRecognizerStateBegan:
    case UIGestureRecognizerStateChanged:
    case UIGestureRecognizerStateEnded:
      recognize(wanted);
      break;
    case UIGestureRecognizerStateCancelled:
    case UIGestureRecognizerStateFailed:
      if (is_under_way()) {
        take_state(UIGestureRecognizerStateCancelled);
      } else {
        fail();
      }
      break;
  }
  GestureArena::shared().settle();
}

void GestureRecognizer::recognize(UIGestureRecognizerState wanted) {
  if (is_over()) return;
  if (is_under_way()) {
    take_state(wanted == UIGestureRecognizerStateBegan ? UIGestureRecognizerStateChanged : wanted);
    return;
  }
  if (wanted_) {
    ended_while_waiting_ = ended_while_waiting_ || wanted == UIGestureRecognizerStateEnded;
    return;
  }
  const bool begins = wanted == UIGestureRecognizerStateChanged;
  wanted_ = begins ? UIGestureRecognizerStateBegan : wanted;
  settle_recognition();
}

void GestureRecognizer::settle_recognition() {
  GestureArena& arena = GestureArena::shared();
  if (arena.is_prevented(*this) || !may_begin()) return fail();
  if (arena.has_to_wait(*this)) return;
  const UIGestureRecognizerState state = *std::exchange(wanted_, std::nullopt);
  const bool ended = std::exchange(ended_while_waiting_, false);
  state_ = state;
  arena.recognized(*this);
  take_state(state);
  if (ended && is_under_way()) take_state(UIGestureRecognizerStateEnded);
}

void GestureRecognizer::reconsider() {
  if (is_waiting()) settle_recognition();
}

/// Asks the touched view and its ancestors up to the recogniser's own view, then the delegate. This
/// lets a control keep taps on itself from recognisers of its ancestors.
bool GestureRecognizer::may_begin() const {
  UIView asked = touches_.empty() ? view_ : touches_.front()->view();
  if (!asked.isDescendantOfView(view_)) asked = view_;
  for (; asked; asked = asked == view_ ? UIView() : asked.superview()) {
    if (!asked.gestureRecognizerShouldBegin(self)) return false;
  }
  const auto delegate = objc::cast<UIGestureRecognizerDelegate>(delegate_);
  return !delegate.respondsToSelector("gestureRecognizerShouldBegin:"_sel) ||
         delegate.gestureRecognizerShouldBegin(self);
}

void GestureRecognizer::take_state(UIGestureRecognizerState state) {
  state_ = state;
  const auto targets = targets_;
  for (const Target& target : targets)
    send_action_message(target.object, target.action, self, nil);
}

void GestureRecognizer::fail() {
  if (state_ != UIGestureRecognizerStatePossible) return;
  state_ = UIGestureRecognizerStateFailed;
  wanted_.reset();
  ended_while_waiting_ = false;
  GestureArena::shared().failed(*this);
}

void GestureRecognizer::abandon() {
  if (!engaged_) return;
  const auto kept = objc::Ref<UIGestureRecognizer>::retain(self);
  if (is_under_way()) {
    take_state(UIGestureRecognizerStateCancelled);
  } else {
    fail();
  }
  last_location_ = screen_location();
  const auto touches = touches_;
  for (const auto& touch : touches)
    objc::state_of<Touch>(touch.get()).forget(self);
  touches_.clear();
  start_over();
  GestureArena::shared().disengage(self);
  GestureArena::shared().settle();
}

void GestureRecognizer::leave_view() {
  abandon();
  view_ = nil;
}

void GestureRecognizer::take(UITouch touch) {
  touches_.push_back(objc::Ref<UITouch>::retain(touch));
  engaged_ = true;
}

void GestureRecognizer::drop_lifted_touches() {
  // A recogniser that waits for another to fail must still report its location.
  if (is_waiting()) return;
  last_location_ = screen_location();
  std::erase_if(touches_,
                [](const auto& touch) { return !objc::state_of<Touch>(touch.get()).is_down(); });
}

void GestureRecognizer::start_over() {
  state_ = UIGestureRecognizerStatePossible;
  wanted_.reset();
  ended_while_waiting_ = false;
  engaged_ = false;
  self.reset();
}

bool GestureRecognizer::shares_touch_with(const GestureRecognizer& other) const {
  return std::any_of(touches_.begin(), touches_.end(), [&other](const auto& touch) {
    return objc::state_of<Touch>(touch.get()).is_seen_by(other.self);
  });
}

bool GestureRecognizer::waits_for(UIGestureRecognizer other) const {
  const auto found = std::find(required_failures_.begin(), required_failures_.end(), other);
  if (found != required_failures_.end()) return true;
  const auto own = objc::cast<UIGestureRecognizerDelegate>(delegate_);
  if (own.respondsToSelector("gestureRecognizer:shouldRequireFailureOfGestureRecognizer:"_sel) &&
      own.gestureRecognizerShouldRequireFailure(self, other)) {
    return true;
  }
  const auto others = objc::cast<UIGestureRecognizerDelegate>(other.delegate());
  return others.respondsToSelector(
             "gestureRecognizer:shouldBeRequiredToFailByGestureRecognizer:"_sel) &&
         others.gestureRecognizerShouldBeRequiredToFail(other, self);
}

void export_gesture_recognizer() {
  objc::ClassBuilder("UIGestureRecognizer", "NSObject")
      .state<GestureRecognizer>()
      .method<&GestureRecognizer::init>("init")
      .method<&GestureRecognizer::init_with_target>("initWithTarget:action:")
      .method<&GestureRecognizer::add_target>("addTarget:action:")
      .method<&GestureRecognizer::remove_target>("removeTarget:action:")
      .method<&GestureRecognizer::state>("state")
      .method<&GestureRecognizer::set_state>("setState:")
      .method<&GestureRecognizer::view>("view")
      .method<&GestureRecognizer::delegate>("delegate")
      .method<&GestureRecognizer::set_delegate>("setDelegate:")
      .method<&GestureRecognizer::is_enabled>("isEnabled")
      .method<&GestureRecognizer::set_enabled>("setEnabled:")
      .method<&GestureRecognizer::cancels_touches_in_view>("cancelsTouchesInView")
      .method<&GestureRecognizer::set_cancels_touches_in_view>("setCancelsTouchesInView:")
      .method<&GestureRecognizer::delays_touches_began>("delaysTouchesBegan")
      .method<&GestureRecognizer::set_delays_touches_began>("setDelaysTouchesBegan:")
      .method<&GestureRecognizer::delays_touches_ended>("delaysTouchesEnded")
      .method<&GestureRecognizer::set_delays_touches_ended>("setDelaysTouchesEnded:")
      .method<&GestureRecognizer::require_to_fail>("requireGestureRecognizerToFail:")
      .method<&GestureRecognizer::number_of_touches>("numberOfTouches")
      .method<&GestureRecognizer::location_in_view>("locationInView:")
      .method<&GestureRecognizer::location_of_touch>("locationOfTouch:inView:")
      .method<&GestureRecognizer::touches_began>("touchesBegan:withEvent:")
      .method<&GestureRecognizer::touches_moved>("touchesMoved:withEvent:")
      .method<&GestureRecognizer::touches_ended>("touchesEnded:withEvent:")
      .method<&GestureRecognizer::touches_cancelled>("touchesCancelled:withEvent:")
      .method<&GestureRecognizer::reset>("reset")
      .method<&GestureRecognizer::ignore_touch>("ignoreTouch:forEvent:")
      .method<&GestureRecognizer::can_prevent>("canPreventGestureRecognizer:")
      .method<&GestureRecognizer::can_be_prevented_by>("canBePreventedByGestureRecognizer:")
      .finish();
}

}  // namespace host::uikit
