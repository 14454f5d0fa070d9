#pragma once

#include "platform/Foundation/NSArray.h"

struct NSSet : objc::Bound<NSSet, "NSSet", NSObject> {
  static NSSet set() { return call_class<"set", NSSet>(); }
  static NSSet setWithObject(objc::Object object) {
    return call_class<"setWithObject:", NSSet>(object);
  }
  static NSSet setWithArray(NSArray objects) { return call_class<"setWithArray:", NSSet>(objects); }

  NSUInteger count() const { return call<"count", NSUInteger>(); }
  objc::Object anyObject() const { return call<"anyObject", objc::Object>(); }
  NSArray allObjects() const { return call<"allObjects", NSArray>(); }
  objc::Object member(objc::Object object) const { return call<"member:", objc::Object>(object); }
  BOOL containsObject(objc::Object object) const { return call<"containsObject:", BOOL>(object); }
  NSEnumerator objectEnumerator() const { return call<"objectEnumerator", NSEnumerator>(); }
  BOOL isEqualToSet(NSSet other) const { return call<"isEqualToSet:", BOOL>(other); }
};

struct NSMutableSet : objc::Bound<NSMutableSet, "NSMutableSet", NSSet> {
  static NSMutableSet set() { return call_class<"set", NSMutableSet>(); }

  void addObject(objc::Object object) const { call<"addObject:">(object); }
  void addObjectsFromArray(NSArray objects) const { call<"addObjectsFromArray:">(objects); }
  void removeObject(objc::Object object) const { call<"removeObject:">(object); }
  void removeAllObjects() const { call<"removeAllObjects">(); }
};
