#pragma once

#include "platform/Foundation/NSValue.h"

enum NSNumberFormatterStyle : NSUInteger {
  NSNumberFormatterNoStyle = 0,
  NSNumberFormatterDecimalStyle = 1,
  NSNumberFormatterCurrencyStyle = 2,
  NSNumberFormatterPercentStyle = 3,
};

struct NSNumberFormatter : objc::Bound<NSNumberFormatter, "NSNumberFormatter", NSObject> {
  NSNumberFormatterStyle numberStyle() const {
    return call<"numberStyle", NSNumberFormatterStyle>();
  }
  void setNumberStyle(NSNumberFormatterStyle style) const { call<"setNumberStyle:">(style); }
  NSString stringFromNumber(NSNumber number) const {
    return call<"stringFromNumber:", NSString>(number);
  }
};
