#pragma once

#include <string>
#include <string_view>

#include "platform/Foundation/NSString.h"

namespace host::springboard {

/// Empty for nil.
inline std::string to_string(NSString text) {
  const char* bytes = text.UTF8String();
  return bytes ? bytes : std::string();
}

/// Autoreleased; nil when the bytes are not UTF-8.
inline NSString to_ns(std::string_view text) {
  return NSString::stringWithUTF8String(std::string(text).c_str());
}

/// Returns the object as a string, or nil when it is of another class: the types in a property list
/// are unknown before they are checked.
inline NSString string_or_nil(objc::Object object) {
  const NSString text = objc::cast<NSString>(object);
  return text.isKindOfClass(NSString::cls()) ? text : NSString();
}

}  // namespace host::springboard
