#pragma once

#include "platform/Foundation/NSString.h"

/// Seconds.
using NSTimeInterval = double;

struct NSDate : objc::Bound<NSDate, "NSDate", NSObject> {
  static NSDate date() { return call_class<"date", NSDate>(); }
  static NSDate dateWithTimeIntervalSinceNow(NSTimeInterval seconds) {
    return call_class<"dateWithTimeIntervalSinceNow:", NSDate>(seconds);
  }
  static NSDate dateWithTimeIntervalSince1970(NSTimeInterval seconds) {
    return call_class<"dateWithTimeIntervalSince1970:", NSDate>(seconds);
  }

  NSTimeInterval timeIntervalSinceNow() const {
    return call<"timeIntervalSinceNow", NSTimeInterval>();
  }
  NSTimeInterval timeIntervalSince1970() const {
    return call<"timeIntervalSince1970", NSTimeInterval>();
  }
  NSTimeInterval timeIntervalSinceDate(NSDate other) const {
    return call<"timeIntervalSinceDate:", NSTimeInterval>(other);
  }
};

struct NSDateFormatter : objc::Bound<NSDateFormatter, "NSDateFormatter", NSObject> {
  NSString dateFormat() const { return call<"dateFormat", NSString>(); }
  void setDateFormat(NSString format) const { call<"setDateFormat:">(format); }
  NSString stringFromDate(NSDate date) const { return call<"stringFromDate:", NSString>(date); }
};
