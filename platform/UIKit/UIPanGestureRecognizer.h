#pragma once

#include "platform/UIKit/UIGestureRecognizer.h"

struct UIPanGestureRecognizer
    : objc::Bound<UIPanGestureRecognizer, "UIPanGestureRecognizer", UIGestureRecognizer> {
  UIPanGestureRecognizer initWithTarget(objc::Object target, objc::Sel action) const {
    return objc::cast<UIPanGestureRecognizer>(UIGestureRecognizer::initWithTarget(target, action));
  }
  NSUInteger minimumNumberOfTouches() const { return call<"minimumNumberOfTouches", NSUInteger>(); }
  void setMinimumNumberOfTouches(NSUInteger count) const {
    call<"setMinimumNumberOfTouches:">(count);
  }
  NSUInteger maximumNumberOfTouches() const { return call<"maximumNumberOfTouches", NSUInteger>(); }
  void setMaximumNumberOfTouches(NSUInteger count) const {
    call<"setMaximumNumberOfTouches:">(count);
  }
  /// In points, from where the touches landed or from the last `setTranslation`.
  CGPoint translationInView(UIView view) const { return call<"translationInView:", CGPoint>(view); }
  void setTranslation(CGPoint translation, UIView view) const {
    call<"setTranslation:inView:">(translation, view);
  }
  /// In points per second.
  CGPoint velocityInView(UIView view) const { return call<"velocityInView:", CGPoint>(view); }
};
