#pragma once

#include "platform/Foundation/NSObject.h"

struct NSArray;

using unichar = unsigned short;

struct NSRange {
  NSUInteger location = 0;
  NSUInteger length = 0;
};

template <>
struct objc::Encode<NSRange> {
  static constexpr FixedString text = "{_NSRange=QQ}";
};

struct NSString : objc::Bound<NSString, "NSString", NSObject> {
  static NSString stringWithUTF8String(const char* text) {
    return call_class<"stringWithUTF8String:", NSString>(text);
  }
  NSString initWithUTF8String(const char* text) const {
    return call<"initWithUTF8String:", NSString>(text);
  }

  NSUInteger length() const { return call<"length", NSUInteger>(); }
  const char* UTF8String() const { return call<"UTF8String", const char*>(); }
  const char* fileSystemRepresentation() const {
    return call<"fileSystemRepresentation", const char*>();
  }
  int intValue() const { return call<"intValue", int>(); }
  BOOL boolValue() const { return call<"boolValue", BOOL>(); }
  BOOL isEqualToString(NSString other) const { return call<"isEqualToString:", BOOL>(other); }
  BOOL hasPrefix(NSString prefix) const { return call<"hasPrefix:", BOOL>(prefix); }
  BOOL hasSuffix(NSString suffix) const { return call<"hasSuffix:", BOOL>(suffix); }
  NSString lowercaseString() const { return call<"lowercaseString", NSString>(); }
  NSString substringFromIndex(NSUInteger index) const {
    return call<"substringFromIndex:", NSString>(index);
  }
  NSString stringByAppendingString(NSString other) const {
    return call<"stringByAppendingString:", NSString>(other);
  }
  NSString stringByReplacingCharactersInRange(NSRange range, NSString replacement) const {
    return call<"stringByReplacingCharactersInRange:withString:", NSString>(range, replacement);
  }
  NSRange rangeOfString(NSString other) const { return call<"rangeOfString:", NSRange>(other); }
  /// The range, in UTF-16 units, of the whole character that contains the unit at `index`.
  NSRange rangeOfComposedCharacterSequenceAtIndex(NSUInteger index) const {
    return call<"rangeOfComposedCharacterSequenceAtIndex:", NSRange>(index);
  }
  unichar characterAtIndex(NSUInteger index) const {
    return call<"characterAtIndex:", unichar>(index);
  }
  void getCharacters(unichar* characters, NSRange range) const {
    call<"getCharacters:range:">(characters, range);
  }
  NSString uppercaseString() const { return call<"uppercaseString", NSString>(); }
  NSString substringToIndex(NSUInteger index) const {
    return call<"substringToIndex:", NSString>(index);
  }
  NSString substringWithRange(NSRange range) const {
    return call<"substringWithRange:", NSString>(range);
  }
  NSArray componentsSeparatedByString(NSString separator) const;
  NSInteger integerValue() const { return call<"integerValue", NSInteger>(); }
  float floatValue() const { return call<"floatValue", float>(); }
  double doubleValue() const { return call<"doubleValue", double>(); }
  NSInteger compare(NSString other) const { return call<"compare:", NSInteger>(other); }
  NSInteger caseInsensitiveCompare(NSString other) const {
    return call<"caseInsensitiveCompare:", NSInteger>(other);
  }
  NSString stringByAppendingPathComponent(NSString component) const {
    return call<"stringByAppendingPathComponent:", NSString>(component);
  }
  NSString stringByDeletingLastPathComponent() const {
    return call<"stringByDeletingLastPathComponent", NSString>();
  }
  NSString stringByDeletingPathExtension() const {
    return call<"stringByDeletingPathExtension", NSString>();
  }
  NSString lastPathComponent() const { return call<"lastPathComponent", NSString>(); }
  NSString pathExtension() const { return call<"pathExtension", NSString>(); }
  /// An immutable copy (+1).
  NSString copy() const { return call<"copy", NSString>(); }
};

inline NSString NSObject::description() const {
  return call<"description", NSString>();
}
inline NSString NSObject::className() const {
  return call<"className", NSString>();
}

namespace objc {

template <FixedString Text>
inline constinit Id cached_string = nullptr;

inline namespace literals {

/// A constant string. It is made at its first use and never released.
template <FixedString Text>
inline NSString operator""_ns() {
  if (!cached_string<Text>) [[unlikely]]
    cached_string<Text> = NSString::alloc().initWithUTF8String(Text.c_str()).id();
  return wrap<NSString>(cached_string<Text>);
}

}  // namespace literals
}  // namespace objc
