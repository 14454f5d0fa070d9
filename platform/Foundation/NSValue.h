#pragma once

#include "platform/Foundation/NSString.h"

struct NSValue : objc::Bound<NSValue, "NSValue", NSObject> {};

struct NSNumber : objc::Bound<NSNumber, "NSNumber", NSValue> {
  static NSNumber numberWithBool(BOOL value) {
    return call_class<"numberWithBool:", NSNumber>(value);
  }
  static NSNumber numberWithInt(int value) { return call_class<"numberWithInt:", NSNumber>(value); }
  static NSNumber numberWithInteger(NSInteger value) {
    return call_class<"numberWithInteger:", NSNumber>(value);
  }
  static NSNumber numberWithUnsignedLongLong(unsigned long long value) {
    return call_class<"numberWithUnsignedLongLong:", NSNumber>(value);
  }
  static NSNumber numberWithFloat(float value) {
    return call_class<"numberWithFloat:", NSNumber>(value);
  }
  static NSNumber numberWithDouble(double value) {
    return call_class<"numberWithDouble:", NSNumber>(value);
  }

  BOOL boolValue() const { return call<"boolValue", BOOL>(); }
  int intValue() const { return call<"intValue", int>(); }
  NSInteger integerValue() const { return call<"integerValue", NSInteger>(); }
  unsigned long long unsignedLongLongValue() const {
    return call<"unsignedLongLongValue", unsigned long long>();
  }
  float floatValue() const { return call<"floatValue", float>(); }
  double doubleValue() const { return call<"doubleValue", double>(); }
  NSString stringValue() const { return call<"stringValue", NSString>(); }
};
