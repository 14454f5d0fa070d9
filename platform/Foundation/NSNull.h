#pragma once

#include "platform/Foundation/NSObject.h"

struct NSNull : objc::Bound<NSNull, "NSNull", NSObject> {
  static NSNull null() { return call_class<"null", NSNull>(); }
};
