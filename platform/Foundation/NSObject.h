#pragma once

#include "objc/bound.h"

struct NSString;
struct NSArray;

struct NSObject : objc::Bound<NSObject, "NSObject", objc::Object> {
  NSUInteger retainCount() const { return call<"retainCount", NSUInteger>(); }
  objc::Class classOf() const { return call<"class", objc::Class>(); }
  BOOL isKindOfClass(objc::Class cls) const { return call<"isKindOfClass:", BOOL>(cls); }
  BOOL isEqual(objc::Object other) const { return call<"isEqual:", BOOL>(other); }
  BOOL respondsToSelector(objc::Sel selector) const {
    return call<"respondsToSelector:", BOOL>(selector);
  }
  NSString description() const;
  NSString className() const;

  void performSelectorWithObjectAfterDelay(objc::Sel selector, objc::Object argument,
                                           double delay) const {
    call<"performSelector:withObject:afterDelay:">(selector, argument, delay);
  }
};
