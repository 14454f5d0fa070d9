#pragma once

#include "platform/Foundation/NSString.h"

// The spellings of one text, which Foundation adds to its strings.
struct NSStringMapping : objc::Bound<NSStringMapping, "NSString", NSString> {
  /// With every letter in one piece with its marks, where there is such a letter.
  NSString precomposedStringWithCanonicalMapping() const {
    return call<"precomposedStringWithCanonicalMapping", NSString>();
  }
};
