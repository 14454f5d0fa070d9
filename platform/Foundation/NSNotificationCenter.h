#pragma once

#include "platform/Foundation/NSDictionary.h"

struct NSNotification : objc::Bound<NSNotification, "NSNotification", NSObject> {
  NSString name() const { return call<"name", NSString>(); }
  objc::Object object() const { return call<"object", objc::Object>(); }
  NSDictionary userInfo() const { return call<"userInfo", NSDictionary>(); }
};

struct NSNotificationCenter : objc::Bound<NSNotificationCenter, "NSNotificationCenter", NSObject> {
  static NSNotificationCenter defaultCenter() {
    return call_class<"defaultCenter", NSNotificationCenter>();
  }

  /// Does not retain the observer, which has to remove itself before it is deallocated.
  void addObserver(objc::Object observer, objc::Sel selector, NSString name,
                   objc::Object object) const {
    call<"addObserver:selector:name:object:">(observer, selector, name, object);
  }
  void removeObserver(objc::Object observer) const { call<"removeObserver:">(observer); }
  void postNotificationName(NSString name, objc::Object object, NSDictionary user_info) const {
    call<"postNotificationName:object:userInfo:">(name, object, user_info);
  }
};
