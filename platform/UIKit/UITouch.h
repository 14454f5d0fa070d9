#pragma once

#include "platform/UIKit/UIGestureRecognizer.h"
#include "platform/UIKit/UIWindow.h"

enum UITouchPhase : NSInteger {
  UITouchPhaseBegan,
  UITouchPhaseMoved,
  UITouchPhaseStationary,
  UITouchPhaseEnded,
  UITouchPhaseCancelled,
};

struct UITouch : objc::Bound<UITouch, "UITouch", NSObject> {
  /// In seconds of the process's clock.
  double timestamp() const { return call<"timestamp", double>(); }
  UITouchPhase phase() const { return call<"phase", UITouchPhase>(); }
  NSUInteger tapCount() const { return call<"tapCount", NSUInteger>(); }
  UIWindow window() const { return call<"window", UIWindow>(); }
  UIView view() const { return call<"view", UIView>(); }
  NSArray gestureRecognizers() const { return call<"gestureRecognizers", NSArray>(); }
  /// For a nil view, in the coordinates of the touch's window.
  CGPoint locationInView(UIView view) const { return call<"locationInView:", CGPoint>(view); }
  CGPoint previousLocationInView(UIView view) const {
    return call<"previousLocationInView:", CGPoint>(view);
  }
};

inline NSSet UIEvent::touchesForWindow(UIWindow window) const {
  return call<"touchesForWindow:", NSSet>(window);
}
inline NSSet UIEvent::touchesForView(UIView view) const {
  return call<"touchesForView:", NSSet>(view);
}
inline NSSet UIEvent::touchesForGestureRecognizer(UIGestureRecognizer recognizer) const {
  return call<"touchesForGestureRecognizer:", NSSet>(recognizer);
}
inline void UIGestureRecognizer::ignoreTouch(UITouch touch, UIEvent event) const {
  call<"ignoreTouch:forEvent:">(touch, event);
}
inline BOOL UIGestureRecognizerDelegate::gestureRecognizerShouldReceiveTouch(
    UIGestureRecognizer recognizer, UITouch touch) const {
  return call<"gestureRecognizer:shouldReceiveTouch:", BOOL>(recognizer, touch);
}
