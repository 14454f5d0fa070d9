#pragma once

#include "platform/Foundation/NSArray.h"
#include "platform/MediaPlayer/MPMediaItem.h"

// Posted after the library has changed. From then on queries return the new contents.
extern "C" {
extern NSString MPMediaLibraryDidChangeNotification;
}

struct MPMediaPropertyPredicate
    : objc::Bound<MPMediaPropertyPredicate, "MPMediaPropertyPredicate", NSObject> {
  static MPMediaPropertyPredicate predicateWithValue(objc::Object value, NSString property) {
    return call_class<"predicateWithValue:forProperty:", MPMediaPropertyPredicate>(value, property);
  }
};

/// A query without predicates returns the whole library, in the library's order.
struct MPMediaQuery : objc::Bound<MPMediaQuery, "MPMediaQuery", NSObject> {
  void addFilterPredicate(MPMediaPropertyPredicate predicate) const {
    call<"addFilterPredicate:">(predicate);
  }
  NSArray items() const { return call<"items", NSArray>(); }
};
