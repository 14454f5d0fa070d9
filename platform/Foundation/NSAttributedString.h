#pragma once

#include "platform/Foundation/NSDictionary.h"

struct NSAttributedString : objc::Bound<NSAttributedString, "NSAttributedString", NSObject> {
  NSAttributedString initWithString(NSString text) const {
    return call<"initWithString:", NSAttributedString>(text);
  }
  NSAttributedString initWithString(NSString text, NSDictionary attributes) const {
    return call<"initWithString:attributes:", NSAttributedString>(text, attributes);
  }

  NSUInteger length() const { return call<"length", NSUInteger>(); }
  NSString string() const { return call<"string", NSString>(); }
  /// The attributes at `index`. If `range` is not null, it receives the range they apply to.
  NSDictionary attributesAtIndex(NSUInteger index, NSRange* range) const {
    return call<"attributesAtIndex:effectiveRange:", NSDictionary>(index, range);
  }
  objc::Object attribute(NSString name, NSUInteger index, NSRange* range) const {
    return call<"attribute:atIndex:effectiveRange:", objc::Object>(name, index, range);
  }
  NSAttributedString attributedSubstringFromRange(NSRange range) const {
    return call<"attributedSubstringFromRange:", NSAttributedString>(range);
  }
  BOOL isEqualToAttributedString(NSAttributedString other) const {
    return call<"isEqualToAttributedString:", BOOL>(other);
  }
  /// An immutable copy (+1).
  NSAttributedString copy() const { return call<"copy", NSAttributedString>(); }
};

struct NSMutableAttributedString
    : objc::Bound<NSMutableAttributedString, "NSMutableAttributedString", NSAttributedString> {
  NSMutableAttributedString initWithString(NSString text) const {
    return call<"initWithString:", NSMutableAttributedString>(text);
  }
  NSMutableAttributedString initWithString(NSString text, NSDictionary attributes) const {
    return call<"initWithString:attributes:", NSMutableAttributedString>(text, attributes);
  }
  NSMutableAttributedString initWithAttributedString(NSAttributedString other) const {
    return call<"initWithAttributedString:", NSMutableAttributedString>(other);
  }

  void addAttribute(NSString name, objc::Object value, NSRange range) const {
    call<"addAttribute:value:range:">(name, value, range);
  }
  void setAttributes(NSDictionary attributes, NSRange range) const {
    call<"setAttributes:range:">(attributes, range);
  }
  void appendAttributedString(NSAttributedString other) const {
    call<"appendAttributedString:">(other);
  }
};
