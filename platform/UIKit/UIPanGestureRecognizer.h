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
  /// Points from where the touches landed, or as `setTranslation` left it.
  CGPoint translationInView(UIView view) const { return call<"translationInView:", CGPoint>(view); }
  void setTranslation(CGPoint translation, UIView view) const {
    call<"setTranslation:inView:">(translation, view);
  }
  /// Points a second.
  CGPoint velocityInView(UIView view) const { return call<"velocityInView:", CGPoint>(view); }
};
