#pragma once

#include "platform/Foundation/NSString.h"

// Unicode normalisation, which Foundation adds to its strings.
struct NSStringMapping : objc::Bound<NSStringMapping, "NSString", NSString> {
  /// Each letter and its marks composed into one character, where such a character exists.
  NSString precomposedStringWithCanonicalMapping() const {
    return call<"precomposedStringWithCanonicalMapping", NSString>();
  }
};
