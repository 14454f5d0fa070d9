#pragma once

#include "platform/Foundation/NSData.h"

enum NSPropertyListFormat : NSUInteger {
  NSPropertyListOpenStepFormat = 1,
  NSPropertyListXMLFormat_v1_0 = 100,
  NSPropertyListBinaryFormat_v1_0 = 200,
};

struct NSPropertyListSerialization
    : objc::Bound<NSPropertyListSerialization, "NSPropertyListSerialization", NSObject> {
  /// Nil, with the reason in `error` unless that is null, for what no property list can hold.
  static NSData dataFromPropertyList(objc::Object list, NSPropertyListFormat format,
                                     objc::Id* error) {
    return call_class<"dataFromPropertyList:format:errorDescription:", NSData>(list, format, error);
  }
};
