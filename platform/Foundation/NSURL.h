#pragma once

#include "platform/Foundation/NSString.h"

struct NSURL : objc::Bound<NSURL, "NSURL", NSObject> {
  /// Returns nil if the text is not a valid URL.
  static NSURL URLWithString(NSString text) { return call_class<"URLWithString:", NSURL>(text); }
  static NSURL fileURLWithPath(NSString path) {
    return call_class<"fileURLWithPath:", NSURL>(path);
  }
  NSString absoluteString() const { return call<"absoluteString", NSString>(); }
  NSString relativeString() const { return call<"relativeString", NSString>(); }
  NSString scheme() const { return call<"scheme", NSString>(); }
  NSString path() const { return call<"path", NSString>(); }
};
