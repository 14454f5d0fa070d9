#pragma once

#include "platform/CoreGraphics/CGTypes.h"
#include "platform/Foundation/NSString.h"

struct UIFont : objc::Bound<UIFont, "UIFont", NSObject> {
  /// Returns nil if no font has that name.
  static UIFont fontWithName(NSString name, CGFloat size) {
    return call_class<"fontWithName:size:", UIFont>(name, size);
  }
  static UIFont systemFontOfSize(CGFloat size) {
    return call_class<"systemFontOfSize:", UIFont>(size);
  }
  static UIFont boldSystemFontOfSize(CGFloat size) {
    return call_class<"boldSystemFontOfSize:", UIFont>(size);
  }
  static UIFont italicSystemFontOfSize(CGFloat size) {
    return call_class<"italicSystemFontOfSize:", UIFont>(size);
  }
  static CGFloat labelFontSize() { return call_class<"labelFontSize", CGFloat>(); }
  static CGFloat buttonFontSize() { return call_class<"buttonFontSize", CGFloat>(); }
  static CGFloat systemFontSize() { return call_class<"systemFontSize", CGFloat>(); }
  static CGFloat smallSystemFontSize() { return call_class<"smallSystemFontSize", CGFloat>(); }

  UIFont fontWithSize(CGFloat size) const { return call<"fontWithSize:", UIFont>(size); }
  NSString fontName() const { return call<"fontName", NSString>(); }
  NSString familyName() const { return call<"familyName", NSString>(); }
  CGFloat pointSize() const { return call<"pointSize", CGFloat>(); }

  // In points. The descender lies below the baseline and is negative.
  CGFloat ascender() const { return call<"ascender", CGFloat>(); }
  CGFloat descender() const { return call<"descender", CGFloat>(); }
  CGFloat capHeight() const { return call<"capHeight", CGFloat>(); }
  CGFloat xHeight() const { return call<"xHeight", CGFloat>(); }
  CGFloat lineHeight() const { return call<"lineHeight", CGFloat>(); }
  CGFloat leading() const { return call<"leading", CGFloat>(); }
};
