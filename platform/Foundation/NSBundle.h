#pragma once

#include "platform/Foundation/NSDictionary.h"

struct NSBundle : objc::Bound<NSBundle, "NSBundle", NSObject> {
  static NSBundle mainBundle() { return call_class<"mainBundle", NSBundle>(); }
  static NSBundle bundleWithPath(NSString path) {
    return call_class<"bundleWithPath:", NSBundle>(path);
  }

  NSString bundlePath() const { return call<"bundlePath", NSString>(); }
  NSString resourcePath() const { return call<"resourcePath", NSString>(); }
  NSString bundleIdentifier() const { return call<"bundleIdentifier", NSString>(); }
  NSDictionary infoDictionary() const { return call<"infoDictionary", NSDictionary>(); }
  NSString pathForResource(NSString name, NSString extension) const {
    return call<"pathForResource:ofType:", NSString>(name, extension);
  }
  NSString localizedStringForKey(NSString key, NSString value, NSString table) const {
    return call<"localizedStringForKey:value:table:", NSString>(key, value, table);
  }
  BOOL load() const { return call<"load", BOOL>(); }
  objc::Class principalClass() const { return call<"principalClass", objc::Class>(); }
};
