#pragma once

#include "platform/Foundation/NSString.h"

struct NSData : objc::Bound<NSData, "NSData", NSObject> {
  static NSData data() { return call_class<"data", NSData>(); }
  static NSData dataWithBytes(const void* bytes, NSUInteger length) {
    return call_class<"dataWithBytes:length:", NSData>(bytes, length);
  }
  /// Returns nil if the file cannot be read.
  static NSData dataWithContentsOfFile(NSString path) {
    return call_class<"dataWithContentsOfFile:", NSData>(path);
  }

  NSUInteger length() const { return call<"length", NSUInteger>(); }
  const void* bytes() const { return call<"bytes", const void*>(); }
  BOOL isEqualToData(NSData other) const { return call<"isEqualToData:", BOOL>(other); }
  BOOL writeToFile(NSString path, BOOL atomically) const {
    return call<"writeToFile:atomically:", BOOL>(path, atomically);
  }
};
