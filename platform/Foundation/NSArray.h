#pragma once

#include "platform/Foundation/NSEnumerator.h"
#include "platform/Foundation/NSString.h"

struct NSArray;

/// Iterates over an array by index: `for (UIView view : views.of<UIView>())` needs no casts.
template <objc::Handle T, class Array>
class NSArrayElements {
 public:
  class Iterator {
   public:
    Iterator(Array array, NSUInteger index) : array_(array), index_(index) {}
    T operator*() const { return objc::cast<T>(array_.objectAtIndex(index_)); }
    Iterator& operator++() {
      ++index_;
      return *this;
    }
    friend bool operator==(const Iterator& left, const Iterator& right) {
      return left.index_ == right.index_;
    }

   private:
    Array array_;
    NSUInteger index_;
  };

  explicit NSArrayElements(Array array) : array_(array) {}
  Iterator begin() const { return Iterator(array_, 0); }
  Iterator end() const { return Iterator(array_, array_.count()); }

 private:
  Array array_;
};

struct NSArray : objc::Bound<NSArray, "NSArray", NSObject> {
  static NSArray array() { return call_class<"array", NSArray>(); }
  static NSArray arrayWithObject(objc::Object object) {
    return call_class<"arrayWithObject:", NSArray>(object);
  }
  static NSArray arrayWithObjects(const objc::Object* objects, NSUInteger count) {
    return call_class<"arrayWithObjects:count:", NSArray>(objects, count);
  }
  /// An array of the given objects, none of which may be nil.
  template <objc::Handle... Objects>
  static NSArray arrayWithObjects(objc::Object first, Objects... others) {
    const objc::Object objects[] = {first, others...};
    return arrayWithObjects(objects, 1 + sizeof...(others));
  }
  static NSArray arrayWithArray(NSArray other) {
    return call_class<"arrayWithArray:", NSArray>(other);
  }
  static NSArray arrayWithContentsOfFile(NSString path) {
    return call_class<"arrayWithContentsOfFile:", NSArray>(path);
  }
  NSArray initWithArray(NSArray other) const { return call<"initWithArray:", NSArray>(other); }

  NSUInteger count() const { return call<"count", NSUInteger>(); }
  objc::Object objectAtIndex(NSUInteger index) const {
    return call<"objectAtIndex:", objc::Object>(index);
  }
  /// Copies the objects in the range to `objects` without retaining them.
  void getObjects(objc::Object* objects, NSRange range) const {
    call<"getObjects:range:">(objects, range);
  }
  objc::Object firstObject() const { return call<"firstObject", objc::Object>(); }
  objc::Object lastObject() const { return call<"lastObject", objc::Object>(); }
  BOOL containsObject(objc::Object object) const { return call<"containsObject:", BOOL>(object); }
  /// Compares by `isEqual:`. Returns NSNotFound if there is no such object.
  NSUInteger indexOfObject(objc::Object object) const {
    return call<"indexOfObject:", NSUInteger>(object);
  }
  /// Compares by identity. Returns NSNotFound if there is no such object.
  NSUInteger indexOfObjectIdenticalTo(objc::Object object) const {
    return call<"indexOfObjectIdenticalTo:", NSUInteger>(object);
  }
  NSArray arrayByAddingObject(objc::Object object) const {
    return call<"arrayByAddingObject:", NSArray>(object);
  }
  NSArray arrayByAddingObjectsFromArray(NSArray other) const {
    return call<"arrayByAddingObjectsFromArray:", NSArray>(other);
  }
  NSArray subarrayWithRange(NSRange range) const {
    return call<"subarrayWithRange:", NSArray>(range);
  }
  NSArray sortedArrayUsingSelector(objc::Sel comparison) const {
    return call<"sortedArrayUsingSelector:", NSArray>(comparison);
  }
  NSString componentsJoinedByString(NSString separator) const {
    return call<"componentsJoinedByString:", NSString>(separator);
  }
  void makeObjectsPerformSelector(objc::Sel selector) const {
    call<"makeObjectsPerformSelector:">(selector);
  }
  NSEnumerator objectEnumerator() const { return call<"objectEnumerator", NSEnumerator>(); }
  NSEnumerator reverseObjectEnumerator() const {
    return call<"reverseObjectEnumerator", NSEnumerator>();
  }
  BOOL isEqualToArray(NSArray other) const { return call<"isEqualToArray:", BOOL>(other); }
  BOOL writeToFile(NSString path, BOOL atomically) const {
    return call<"writeToFile:atomically:", BOOL>(path, atomically);
  }
  /// An immutable copy (+1).
  NSArray copy() const { return call<"copy", NSArray>(); }

  /// The elements as handles of one class. The array must not change during the iteration; iterate
  /// over a copy if it might.
  template <objc::Handle T = objc::Object>
  NSArrayElements<T, NSArray> of() const {
    return NSArrayElements<T, NSArray>(*this);
  }
};

struct NSMutableArray : objc::Bound<NSMutableArray, "NSMutableArray", NSArray> {
  static NSMutableArray array() { return call_class<"array", NSMutableArray>(); }
  static NSMutableArray arrayWithCapacity(NSUInteger capacity) {
    return call_class<"arrayWithCapacity:", NSMutableArray>(capacity);
  }
  static NSMutableArray arrayWithArray(NSArray other) {
    return call_class<"arrayWithArray:", NSMutableArray>(other);
  }
  NSMutableArray initWithArray(NSArray other) const {
    return call<"initWithArray:", NSMutableArray>(other);
  }

  void addObject(objc::Object object) const { call<"addObject:">(object); }
  void addObjectsFromArray(NSArray other) const { call<"addObjectsFromArray:">(other); }
  void insertObject(objc::Object object, NSUInteger index) const {
    call<"insertObject:atIndex:">(object, index);
  }
  void replaceObjectAtIndex(NSUInteger index, objc::Object object) const {
    call<"replaceObjectAtIndex:withObject:">(index, object);
  }
  void removeObject(objc::Object object) const { call<"removeObject:">(object); }
  void removeObjectIdenticalTo(objc::Object object) const {
    call<"removeObjectIdenticalTo:">(object);
  }
  void removeObjectAtIndex(NSUInteger index) const { call<"removeObjectAtIndex:">(index); }
  void removeLastObject() const { call<"removeLastObject">(); }
  void removeAllObjects() const { call<"removeAllObjects">(); }
  void sortUsingSelector(objc::Sel comparison) const { call<"sortUsingSelector:">(comparison); }
};

inline NSArray NSString::componentsSeparatedByString(NSString separator) const {
  return call<"componentsSeparatedByString:", NSArray>(separator);
}
