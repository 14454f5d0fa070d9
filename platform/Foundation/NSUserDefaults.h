#pragma once

#include "platform/Foundation/NSDictionary.h"

struct NSUserDefaults : objc::Bound<NSUserDefaults, "NSUserDefaults", NSObject> {
  static NSUserDefaults standardUserDefaults() {
    return call_class<"standardUserDefaults", NSUserDefaults>();
  }

  objc::Object objectForKey(NSString key) const { return call<"objectForKey:", objc::Object>(key); }
  BOOL boolForKey(NSString key) const { return call<"boolForKey:", BOOL>(key); }
  NSString stringForKey(NSString key) const { return call<"stringForKey:", NSString>(key); }
  NSArray arrayForKey(NSString key) const { return call<"arrayForKey:", NSArray>(key); }
  void setObject(objc::Object object, NSString key) const {
    call<"setObject:forKey:">(object, key);
  }
  void setBool(BOOL value, NSString key) const { call<"setBool:forKey:">(value, key); }
  void removeObjectForKey(NSString key) const { call<"removeObjectForKey:">(key); }
  void registerDefaults(NSDictionary defaults) const { call<"registerDefaults:">(defaults); }
  BOOL synchronize() const { return call<"synchronize", BOOL>(); }
};
