#pragma once

#include "platform/Foundation/NSObject.h"

struct NSIndexPath : objc::Bound<NSIndexPath, "NSIndexPath", NSObject> {
  static NSIndexPath indexPathForRow(NSInteger row, NSInteger section) {
    return call_class<"indexPathForRow:inSection:", NSIndexPath>(row, section);
  }
  static NSIndexPath indexPathWithIndexes(const NSUInteger* indexes, NSUInteger length) {
    return call_class<"indexPathWithIndexes:length:", NSIndexPath>(indexes, length);
  }

  NSInteger row() const { return call<"row", NSInteger>(); }
  NSInteger section() const { return call<"section", NSInteger>(); }
  NSUInteger length() const { return call<"length", NSUInteger>(); }
  NSUInteger indexAtPosition(NSUInteger position) const {
    return call<"indexAtPosition:", NSUInteger>(position);
  }
};
