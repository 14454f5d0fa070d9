#pragma once

#include "platform/UIKit/UIGestureRecognizer.h"

struct UILongPressGestureRecognizer
    : objc::Bound<UILongPressGestureRecognizer, "UILongPressGestureRecognizer",
                  UIGestureRecognizer> {
  UILongPressGestureRecognizer initWithTarget(objc::Object target, objc::Sel action) const {
    return objc::cast<UILongPressGestureRecognizer>(
        UIGestureRecognizer::initWithTarget(target, action));
  }
  NSUInteger numberOfTouchesRequired() const {
    return call<"numberOfTouchesRequired", NSUInteger>();
  }
  void setNumberOfTouchesRequired(NSUInteger count) const {
    call<"setNumberOfTouchesRequired:">(count);
  }
  /// In seconds.
  double minimumPressDuration() const { return call<"minimumPressDuration", double>(); }
  void setMinimumPressDuration(double seconds) const { call<"setMinimumPressDuration:">(seconds); }
  /// How far, in points, the finger may move before the press is recognised.
  CGFloat allowableMovement() const { return call<"allowableMovement", CGFloat>(); }
  void setAllowableMovement(CGFloat points) const { call<"setAllowableMovement:">(points); }
};
