#pragma once

#include "platform/Foundation/NSString.h"

struct UIPasteboard : objc::Bound<UIPasteboard, "UIPasteboard", NSObject> {
  static UIPasteboard generalPasteboard() {
    return call_class<"generalPasteboard", UIPasteboard>();
  }

  /// Nil if it holds no text.
  NSString string() const { return call<"string", NSString>(); }
  void setString(NSString text) const { call<"setString:">(text); }
};
