#pragma once

#include "platform/Foundation/NSData.h"

enum NSPropertyListFormat : NSUInteger {
  NSPropertyListOpenStepFormat = 1,
  NSPropertyListXMLFormat_v1_0 = 100,
  NSPropertyListBinaryFormat_v1_0 = 200,
};

struct NSPropertyListSerialization
    : objc::Bound<NSPropertyListSerialization, "NSPropertyListSerialization", NSObject> {
  /// Returns nil if `list` contains an object that a property list cannot hold, and then sets
  /// `*error` unless `error` is null.
  static NSData dataFromPropertyList(objc::Object list, NSPropertyListFormat format,
                                     objc::Id* error) {
    return call_class<"dataFromPropertyList:format:errorDescription:", NSData>(list, format, error);
  }
  /// Returns nil if `data` holds no property list in any format.
  static objc::Object propertyListWithData(NSData data, NSUInteger options,
                                           NSPropertyListFormat* format, objc::Id* error) {
    return call_class<"propertyListWithData:options:format:error:", objc::Object>(data, options,
                                                                                  format, error);
  }
};
