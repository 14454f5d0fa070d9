#pragma once

#include <string>
#include <string_view>

#include "platform/Foundation/NSString.h"

namespace host::activator {

/// Empty for nil and for objects that are not strings: other people's objects are checked first.
inline std::string to_string(objc::Object object) {
  const auto text = objc::cast<NSString>(object);
  if (!text.isKindOfClass(NSString::cls())) return {};
  const char* bytes = text.UTF8String();
  return bytes ? bytes : std::string();
}

/// Autoreleased; nil when the bytes are not UTF-8.
inline NSString to_ns(std::string_view text) {
  return NSString::stringWithUTF8String(std::string(text).c_str());
}

}  // namespace host::activator
