#include "host/uikit/control/control.h"

#include <algorithm>

#include "host/uikit/view/action.h"
#include "platform/UIKit/UIApplication.h"
#include "platform/UIKit/UITapGestureRecognizer.h"

namespace host::uikit {
namespace {

// How far, in points, a finger that has pressed a control may stray and still count as on it.
constexpr CGFloat kTrackingSlack = 70;

}  // namespace

void Control::add_target(objc::Object target, objc::Sel action, UIControlEvents events) {
  if (!action) return;
  for (Registration& present : registrations_) {
    if (present.target == target && present.action == action) {
      present.events |= events;
      return;
    }
  }
  registrations_.push_back({target, action, events});
}

void Control::remove_target(objc::Object target, objc::Sel action, UIControlEvents events) {
  for (Registration& present : registrations_) {
    const bool meant =
        (!target || present.target == target) && (!action || present.action == action);
    if (meant) present.events &= ~events;
  }
  std::erase_if(registrations_, [](const Registration& present) { return present.events == 0; });
}

NSSet Control::all_targets() const {
  const NSMutableSet targets = NSMutableSet::set();
  for (const Registration& registration : registrations_) {
    if (registration.target) targets.addObject(registration.target);
  }
  return targets;
}

UIControlEvents Control::all_control_events() const {
  UIControlEvents events = 0;
  for (const Registration& registration : registrations_)
    events |= registration.events;
  return events;
}

NSArray Control::actions_for_target(objc::Object target, UIControlEvents event) const {
  const NSMutableArray actions = NSMutableArray::array();
  for (const Registration& registration : registrations_) {
    if (registration.target == target && (registration.events & event) != 0)
      actions.addObject(NSString::stringWithUTF8String(sel_getName(registration.action)));
  }
  return actions.count() > 0 ? NSArray(actions) : NSArray();
}

void Control::send_actions(UIControlEvents events) {
  send(events, nil);
}

void Control::send(UIControlEvents events, UIEvent event) {
  const auto registrations = registrations_;
  for (const Registration& registration : registrations) {
    if ((registration.events & events) != 0)
      self.sendAction(registration.action, registration.target, event);
  }
}

void Control::send_action(objc::Sel action, objc::Object target, UIEvent event) {
  if (const UIApplication application = UIApplication::sharedApplication()) {
    application.sendAction(action, target, self, event);
  } else {
    uikit::send_action(action, target, self, event);
  }
}

void Control::set_enabled(BOOL enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  self.setNeedsLayout();
}

void Control::set_selected(BOOL selected) {
  if (selected_ == selected) return;
  selected_ = selected;
  self.setNeedsLayout();
}

void Control::set_highlighted(BOOL highlighted) {
  if (highlighted_ == highlighted) return;
  highlighted_ = highlighted;
  self.setNeedsLayout();
}

void Control::set_content_horizontal_alignment(UIControlContentHorizontalAlignment alignment) {
  alignment_ = alignment;
  self.setNeedsLayout();
}

UIControlState Control::state() const {
  return (self.isHighlighted() ? UIControlStateHighlighted : 0) |
         (self.isEnabled() ? 0 : UIControlStateDisabled) |
         (self.isSelected() ? UIControlStateSelected : 0);
}

bool Control::is_near(UITouch touch) const {
  const CGPoint point = touch.locationInView(self);
  const CGRect bounds = self.bounds();
  return CGRect(bounds.origin.x - kTrackingSlack, bounds.origin.y - kTrackingSlack,
                bounds.size.width + 2 * kTrackingSlack, bounds.size.height + 2 * kTrackingSlack)
      .contains(point);
}

void Control::touches_began(NSSet touches, UIEvent event) {
  if (!self.isEnabled() || tracking_) return;
  const auto touch = objc::cast<UITouch>(touches.anyObject());
  if (!self.beginTrackingWithTouch(touch, event)) return;
  tracking_ = touch_inside_ = YES;
  self.setHighlighted(YES);
  const bool again = touch.tapCount() > 1;
  send(UIControlEventTouchDown | (again ? UIControlEventTouchDownRepeat : 0), event);
}

void Control::touches_moved(NSSet touches, UIEvent event) {
  if (!tracking_) return;
  const auto touch = objc::cast<UITouch>(touches.anyObject());
  const BOOL was_inside = touch_inside_;
  touch_inside_ = is_near(touch) ? YES : NO;
  if (!self.continueTrackingWithTouch(touch, event)) return stop_tracking();
  if (touch_inside_ != was_inside) {
    self.setHighlighted(touch_inside_);
    send(touch_inside_ ? UIControlEventTouchDragEnter : UIControlEventTouchDragExit, event);
  }
  send(touch_inside_ ? UIControlEventTouchDragInside : UIControlEventTouchDragOutside, event);
}

void Control::touches_ended(NSSet touches, UIEvent event) {
  if (!tracking_) return;
  const auto kept = objc::Ref<UIControl>::retain(self);
  const auto touch = objc::cast<UITouch>(touches.anyObject());
  const bool inside = is_near(touch);
  stop_tracking();
  self.endTrackingWithTouch(touch, event);
  send(inside ? UIControlEventTouchUpInside : UIControlEventTouchUpOutside, event);
}

void Control::touches_cancelled(NSSet, UIEvent event) {
  if (!tracking_) return;
  stop_tracking();
  self.cancelTrackingWithEvent(event);
  send(UIControlEventTouchCancel, event);
}

void Control::stop_tracking() {
  tracking_ = touch_inside_ = NO;
  self.setHighlighted(NO);
}

BOOL Control::gesture_recognizer_should_begin(UIGestureRecognizer recognizer) {
  // A single tap with one finger is the control's own; recognisers of its ancestors must not take
  // it.
  const bool above = recognizer.view() != self;
  if (above && enabled_ && recognizer.isKindOfClass(UITapGestureRecognizer::cls())) {
    const auto tap = objc::cast<UITapGestureRecognizer>(recognizer);
    if (tap.numberOfTapsRequired() == 1 && tap.numberOfTouchesRequired() == 1) return NO;
  }
  return super<BOOL>("gestureRecognizerShouldBegin:"_sel, recognizer);
}

void export_control_class() {
  objc::ClassBuilder("UIControl", "UIView")
      .state<Control>()
      .method<&Control::add_target>("addTarget:action:forControlEvents:")
      .method<&Control::remove_target>("removeTarget:action:forControlEvents:")
      .method<&Control::all_targets>("allTargets")
      .method<&Control::all_control_events>("allControlEvents")
      .method<&Control::actions_for_target>("actionsForTarget:forControlEvent:")
      .method<&Control::send_actions>("sendActionsForControlEvents:")
      .method<&Control::send_action>("sendAction:to:forEvent:")
      .method<&Control::is_enabled>("isEnabled")
      .method<&Control::set_enabled>("setEnabled:")
      .method<&Control::is_selected>("isSelected")
      .method<&Control::set_selected>("setSelected:")
      .method<&Control::is_highlighted>("isHighlighted")
      .method<&Control::set_highlighted>("setHighlighted:")
      .method<&Control::state>("state")
      .method<&Control::is_tracking>("isTracking")
      .method<&Control::is_touch_inside>("isTouchInside")
      .method<&Control::content_horizontal_alignment>("contentHorizontalAlignment")
      .method<&Control::set_content_horizontal_alignment>("setContentHorizontalAlignment:")
      .method<&Control::begin_tracking>("beginTrackingWithTouch:withEvent:")
      .method<&Control::continue_tracking>("continueTrackingWithTouch:withEvent:")
      .method<&Control::end_tracking>("endTrackingWithTouch:withEvent:")
      .method<&Control::cancel_tracking>("cancelTrackingWithEvent:")
      .method<&Control::touches_began>("touchesBegan:withEvent:")
      .method<&Control::touches_moved>("touchesMoved:withEvent:")
      .method<&Control::touches_ended>("touchesEnded:withEvent:")
      .method<&Control::touches_cancelled>("touchesCancelled:withEvent:")
      .method<&Control::gesture_recognizer_should_begin>("gestureRecognizerShouldBegin:")
      .finish();
}

}  // namespace host::uikit
