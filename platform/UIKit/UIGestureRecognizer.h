#pragma once

#include "platform/UIKit/UIView.h"

struct UITouch;

enum UIGestureRecognizerState : NSInteger {
  UIGestureRecognizerStatePossible,
  UIGestureRecognizerStateBegan,
  UIGestureRecognizerStateChanged,
  UIGestureRecognizerStateEnded,
  UIGestureRecognizerStateCancelled,
  UIGestureRecognizerStateFailed,
  UIGestureRecognizerStateRecognized = UIGestureRecognizerStateEnded,
};

struct UIGestureRecognizer : objc::Bound<UIGestureRecognizer, "UIGestureRecognizer", NSObject> {
  UIGestureRecognizer initWithTarget(objc::Object target, objc::Sel action) const {
    return call<"initWithTarget:action:", UIGestureRecognizer>(target, action);
  }
  void addTarget(objc::Object target, objc::Sel action) const {
    call<"addTarget:action:">(target, action);
  }
  void removeTarget(objc::Object target, objc::Sel action) const {
    call<"removeTarget:action:">(target, action);
  }

  UIGestureRecognizerState state() const { return call<"state", UIGestureRecognizerState>(); }
  void setState(UIGestureRecognizerState state) const { call<"setState:">(state); }
  UIView view() const { return call<"view", UIView>(); }
  objc::Object delegate() const { return call<"delegate", objc::Object>(); }
  void setDelegate(objc::Object delegate) const { call<"setDelegate:">(delegate); }
  BOOL isEnabled() const { return call<"isEnabled", BOOL>(); }
  /// Disabling a recogniser during its gesture cancels the gesture.
  void setEnabled(BOOL enabled) const { call<"setEnabled:">(enabled); }
  BOOL cancelsTouchesInView() const { return call<"cancelsTouchesInView", BOOL>(); }
  void setCancelsTouchesInView(BOOL cancels) const { call<"setCancelsTouchesInView:">(cancels); }
  BOOL delaysTouchesBegan() const { return call<"delaysTouchesBegan", BOOL>(); }
  void setDelaysTouchesBegan(BOOL delays) const { call<"setDelaysTouchesBegan:">(delays); }
  BOOL delaysTouchesEnded() const { return call<"delaysTouchesEnded", BOOL>(); }
  void setDelaysTouchesEnded(BOOL delays) const { call<"setDelaysTouchesEnded:">(delays); }
  void requireGestureRecognizerToFail(UIGestureRecognizer other) const {
    call<"requireGestureRecognizerToFail:">(other);
  }

  NSUInteger numberOfTouches() const { return call<"numberOfTouches", NSUInteger>(); }
  /// The centre of the gesture's touches; for a nil view, in the window's coordinates.
  CGPoint locationInView(UIView view) const { return call<"locationInView:", CGPoint>(view); }
  CGPoint locationOfTouch(NSUInteger index, UIView view) const {
    return call<"locationOfTouch:inView:", CGPoint>(index, view);
  }

  // For subclasses.
  void touchesBegan(NSSet touches, UIEvent event) const {
    call<"touchesBegan:withEvent:">(touches, event);
  }
  void touchesMoved(NSSet touches, UIEvent event) const {
    call<"touchesMoved:withEvent:">(touches, event);
  }
  void touchesEnded(NSSet touches, UIEvent event) const {
    call<"touchesEnded:withEvent:">(touches, event);
  }
  void touchesCancelled(NSSet touches, UIEvent event) const {
    call<"touchesCancelled:withEvent:">(touches, event);
  }
  void reset() const { call<"reset">(); }
  /// Body in UITouch.h.
  void ignoreTouch(UITouch touch, UIEvent event) const;
  BOOL canPreventGestureRecognizer(UIGestureRecognizer other) const {
    return call<"canPreventGestureRecognizer:", BOOL>(other);
  }
  BOOL canBePreventedByGestureRecognizer(UIGestureRecognizer other) const {
    return call<"canBePreventedByGestureRecognizer:", BOOL>(other);
  }
};

/// Every method is optional: ask `respondsToSelector` first.
struct UIGestureRecognizerDelegate
    : objc::Bound<UIGestureRecognizerDelegate, "UIGestureRecognizerDelegate", NSObject> {
  BOOL gestureRecognizerShouldBegin(UIGestureRecognizer recognizer) const {
    return call<"gestureRecognizerShouldBegin:", BOOL>(recognizer);
  }
  /// Body in UITouch.h.
  BOOL gestureRecognizerShouldReceiveTouch(UIGestureRecognizer recognizer, UITouch touch) const;
  BOOL gestureRecognizerShouldRecognizeSimultaneously(UIGestureRecognizer recognizer,
                                                      UIGestureRecognizer other) const {
    return call<"gestureRecognizer:shouldRecognizeSimultaneouslyWithGestureRecognizer:", BOOL>(
        recognizer, other);
  }
  BOOL gestureRecognizerShouldRequireFailure(UIGestureRecognizer recognizer,
                                             UIGestureRecognizer other) const {
    return call<"gestureRecognizer:shouldRequireFailureOfGestureRecognizer:", BOOL>(recognizer,
                                                                                    other);
  }
  BOOL gestureRecognizerShouldBeRequiredToFail(UIGestureRecognizer recognizer,
                                               UIGestureRecognizer other) const {
    return call<"gestureRecognizer:shouldBeRequiredToFailByGestureRecognizer:", BOOL>(recognizer,
                                                                                      other);
  }
};

inline void UIView::addGestureRecognizer(UIGestureRecognizer recognizer) const {
  call<"addGestureRecognizer:">(recognizer);
}
inline void UIView::removeGestureRecognizer(UIGestureRecognizer recognizer) const {
  call<"removeGestureRecognizer:">(recognizer);
}
inline BOOL UIView::gestureRecognizerShouldBegin(UIGestureRecognizer recognizer) const {
  return call<"gestureRecognizerShouldBegin:", BOOL>(recognizer);
}
