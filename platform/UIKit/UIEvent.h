#pragma once

#include "platform/Foundation/NSSet.h"

struct UITouch;
struct UIView;
struct UIWindow;
struct UIGestureRecognizer;

enum UIEventType : NSInteger {
  UIEventTypeTouches,
  UIEventTypeMotion,
  UIEventTypeRemoteControl,
};

/// Touches by view, window and recogniser: bodies in UITouch.h.
struct UIEvent : objc::Bound<UIEvent, "UIEvent", NSObject> {
  UIEventType type() const { return call<"type", UIEventType>(); }
  double timestamp() const { return call<"timestamp", double>(); }
  NSSet allTouches() const { return call<"allTouches", NSSet>(); }
  NSSet touchesForWindow(UIWindow window) const;
  NSSet touchesForView(UIView view) const;
  NSSet touchesForGestureRecognizer(UIGestureRecognizer recognizer) const;
};
