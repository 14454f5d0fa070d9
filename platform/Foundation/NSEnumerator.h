#pragma once

#include "platform/Foundation/NSObject.h"

struct NSEnumerator : objc::Bound<NSEnumerator, "NSEnumerator", NSObject> {
  /// The next object; nil at the end.
  objc::Object nextObject() const { return call<"nextObject", objc::Object>(); }
};
