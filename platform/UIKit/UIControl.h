#pragma once

#include "platform/UIKit/UITouch.h"

using UIControlEvents = NSUInteger;
inline constexpr UIControlEvents UIControlEventTouchDown = 1 << 0;
inline constexpr UIControlEvents UIControlEventTouchDownRepeat = 1 << 1;
inline constexpr UIControlEvents UIControlEventTouchDragInside = 1 << 2;
inline constexpr UIControlEvents UIControlEventTouchDragOutside = 1 << 3;
inline constexpr UIControlEvents UIControlEventTouchDragEnter = 1 << 4;
inline constexpr UIControlEvents UIControlEventTouchDragExit = 1 << 5;
inline constexpr UIControlEvents UIControlEventTouchUpInside = 1 << 6;
inline constexpr UIControlEvents UIControlEventTouchUpOutside = 1 << 7;
inline constexpr UIControlEvents UIControlEventTouchCancel = 1 << 8;
inline constexpr UIControlEvents UIControlEventValueChanged = 1 << 12;
inline constexpr UIControlEvents UIControlEventEditingDidBegin = 1 << 16;
inline constexpr UIControlEvents UIControlEventEditingChanged = 1 << 17;
inline constexpr UIControlEvents UIControlEventEditingDidEnd = 1 << 18;
inline constexpr UIControlEvents UIControlEventEditingDidEndOnExit = 1 << 19;
inline constexpr UIControlEvents UIControlEventAllTouchEvents = 0x00000FFF;
inline constexpr UIControlEvents UIControlEventAllEditingEvents = 0x000F0000;
inline constexpr UIControlEvents UIControlEventAllEvents = 0xFFFFFFFF;

using UIControlState = NSUInteger;
inline constexpr UIControlState UIControlStateNormal = 0;
inline constexpr UIControlState UIControlStateHighlighted = 1 << 0;
inline constexpr UIControlState UIControlStateDisabled = 1 << 1;
inline constexpr UIControlState UIControlStateSelected = 1 << 2;

enum UIControlContentHorizontalAlignment : NSInteger {
  UIControlContentHorizontalAlignmentCenter,
  UIControlContentHorizontalAlignmentLeft,
  UIControlContentHorizontalAlignmentRight,
  UIControlContentHorizontalAlignmentFill,
};

struct UIControl : objc::Bound<UIControl, "UIControl", UIView> {
  /// The target is not retained; nil searches the responder chain. The action takes no argument,
  /// the sender, or the sender and the event.
  void addTarget(objc::Object target, objc::Sel action, UIControlEvents events) const {
    call<"addTarget:action:forControlEvents:">(target, action, events);
  }
  /// A nil target means every target, a null action every action.
  void removeTarget(objc::Object target, objc::Sel action, UIControlEvents events) const {
    call<"removeTarget:action:forControlEvents:">(target, action, events);
  }
  NSSet allTargets() const { return call<"allTargets", NSSet>(); }
  UIControlEvents allControlEvents() const { return call<"allControlEvents", UIControlEvents>(); }
  NSArray actionsForTarget(objc::Object target, UIControlEvents events) const {
    return call<"actionsForTarget:forControlEvent:", NSArray>(target, events);
  }
  void sendActionsForControlEvents(UIControlEvents events) const {
    call<"sendActionsForControlEvents:">(events);
  }
  void sendAction(objc::Sel action, objc::Object target, UIEvent event) const {
    call<"sendAction:to:forEvent:">(action, target, event);
  }

  BOOL isEnabled() const { return call<"isEnabled", BOOL>(); }
  void setEnabled(BOOL enabled) const { call<"setEnabled:">(enabled); }
  BOOL isSelected() const { return call<"isSelected", BOOL>(); }
  void setSelected(BOOL selected) const { call<"setSelected:">(selected); }
  BOOL isHighlighted() const { return call<"isHighlighted", BOOL>(); }
  void setHighlighted(BOOL highlighted) const { call<"setHighlighted:">(highlighted); }
  UIControlState state() const { return call<"state", UIControlState>(); }
  BOOL isTracking() const { return call<"isTracking", BOOL>(); }
  BOOL isTouchInside() const { return call<"isTouchInside", BOOL>(); }
  UIControlContentHorizontalAlignment contentHorizontalAlignment() const {
    return call<"contentHorizontalAlignment", UIControlContentHorizontalAlignment>();
  }
  void setContentHorizontalAlignment(UIControlContentHorizontalAlignment alignment) const {
    call<"setContentHorizontalAlignment:">(alignment);
  }

  BOOL beginTrackingWithTouch(UITouch touch, UIEvent event) const {
    return call<"beginTrackingWithTouch:withEvent:", BOOL>(touch, event);
  }
  BOOL continueTrackingWithTouch(UITouch touch, UIEvent event) const {
    return call<"continueTrackingWithTouch:withEvent:", BOOL>(touch, event);
  }
  void endTrackingWithTouch(UITouch touch, UIEvent event) const {
    call<"endTrackingWithTouch:withEvent:">(touch, event);
  }
  void cancelTrackingWithEvent(UIEvent event) const { call<"cancelTrackingWithEvent:">(event); }
};
