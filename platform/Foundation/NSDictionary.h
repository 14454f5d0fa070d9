#pragma once

#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSString.h"

struct NSDictionary : objc::Bound<NSDictionary, "NSDictionary", NSObject> {
  static NSDictionary dictionary() { return call_class<"dictionary", NSDictionary>(); }
  static NSDictionary dictionaryWithObject(objc::Object object, objc::Object key) {
    return call_class<"dictionaryWithObject:forKey:", NSDictionary>(object, key);
  }
  static NSDictionary dictionaryWithObjects(NSArray objects, NSArray keys) {
    return call_class<"dictionaryWithObjects:forKeys:", NSDictionary>(objects, keys);
  }
  static NSDictionary dictionaryWithDictionary(NSDictionary other) {
    return call_class<"dictionaryWithDictionary:", NSDictionary>(other);
  }
  /// Returns nil if the file is missing or does not contain a dictionary.
  static NSDictionary dictionaryWithContentsOfFile(NSString path) {
    return call_class<"dictionaryWithContentsOfFile:", NSDictionary>(path);
  }
  NSDictionary initWithDictionary(NSDictionary other) const {
    return call<"initWithDictionary:", NSDictionary>(other);
  }
  NSDictionary initWithContentsOfFile(NSString path) const {
    return call<"initWithContentsOfFile:", NSDictionary>(path);
  }

  NSUInteger count() const { return call<"count", NSUInteger>(); }
  objc::Object objectForKey(objc::Object key) const {
    return call<"objectForKey:", objc::Object>(key);
  }
  objc::Object valueForKey(NSString key) const { return call<"valueForKey:", objc::Object>(key); }
  NSArray allKeys() const { return call<"allKeys", NSArray>(); }
  NSArray allValues() const { return call<"allValues", NSArray>(); }
  NSEnumerator keyEnumerator() const { return call<"keyEnumerator", NSEnumerator>(); }
  NSEnumerator objectEnumerator() const { return call<"objectEnumerator", NSEnumerator>(); }
  BOOL isEqualToDictionary(NSDictionary other) const {
    return call<"isEqualToDictionary:", BOOL>(other);
  }
  BOOL writeToFile(NSString path, BOOL atomically) const {
    return call<"writeToFile:atomically:", BOOL>(path, atomically);
  }
  /// An immutable copy (+1).
  NSDictionary copy() const { return call<"copy", NSDictionary>(); }
};

struct NSMutableDictionary : objc::Bound<NSMutableDictionary, "NSMutableDictionary", NSDictionary> {
  static NSMutableDictionary dictionary() {
    return call_class<"dictionary", NSMutableDictionary>();
  }
  static NSMutableDictionary dictionaryWithCapacity(NSUInteger capacity) {
    return call_class<"dictionaryWithCapacity:", NSMutableDictionary>(capacity);
  }
  static NSMutableDictionary dictionaryWithDictionary(NSDictionary other) {
    return call_class<"dictionaryWithDictionary:", NSMutableDictionary>(other);
  }
  NSMutableDictionary initWithDictionary(NSDictionary other) const {
    return call<"initWithDictionary:", NSMutableDictionary>(other);
  }

  void setObject(objc::Object object, objc::Object key) const {
    call<"setObject:forKey:">(object, key);
  }
  /// As `setObject`, but nil removes the key.
  void setValue(objc::Object value, NSString key) const { call<"setValue:forKey:">(value, key); }
  void addEntriesFromDictionary(NSDictionary other) const {
    call<"addEntriesFromDictionary:">(other);
  }
  void removeObjectForKey(objc::Object key) const { call<"removeObjectForKey:">(key); }
  void removeAllObjects() const { call<"removeAllObjects">(); }
};
