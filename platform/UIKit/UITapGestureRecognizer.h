#pragma once

#include "platform/UIKit/UIGestureRecognizer.h"

struct UITapGestureRecognizer
    : objc::Bound<UITapGestureRecognizer, "UITapGestureRecognizer", UIGestureRecognizer> {
  UITapGestureRecognizer initWithTarget(objc::Object target, objc::Sel action) const {
    return objc::cast<UITapGestureRecognizer>(UIGestureRecognizer::initWithTarget(target, action));
  }
  NSUInteger numberOfTapsRequired() const { return call<"numberOfTapsRequired", NSUInteger>(); }
  void setNumberOfTapsRequired(NSUInteger count) const { call<"setNumberOfTapsRequired:">(count); }
  NSUInteger numberOfTouchesRequired() const {
    return call<"numberOfTouchesRequired", NSUInteger>();
  }
  void setNumberOfTouchesRequired(NSUInteger count) const {
    call<"setNumberOfTouchesRequired:">(count);
  }
};
