#pragma once

#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSData.h"

struct NSDictionary;

struct NSFileManager : objc::Bound<NSFileManager, "NSFileManager", NSObject> {
  static NSFileManager defaultManager() { return call_class<"defaultManager", NSFileManager>(); }

  BOOL fileExistsAtPath(NSString path) const { return call<"fileExistsAtPath:", BOOL>(path); }
  BOOL isReadableFileAtPath(NSString path) const {
    return call<"isReadableFileAtPath:", BOOL>(path);
  }
  BOOL isWritableFileAtPath(NSString path) const {
    return call<"isWritableFileAtPath:", BOOL>(path);
  }
  const char* fileSystemRepresentationWithPath(NSString path) const {
    return call<"fileSystemRepresentationWithPath:", const char*>(path);
  }
  NSData contentsAtPath(NSString path) const { return call<"contentsAtPath:", NSData>(path); }
  /// Returns nil if the folder cannot be read, and then sets `*error` unless `error` is null.
  NSArray contentsOfDirectoryAtPath(NSString path, objc::Id* error) const {
    return call<"contentsOfDirectoryAtPath:error:", NSArray>(path, error);
  }
  BOOL removeItemAtPath(NSString path, objc::Id* error) const {
    return call<"removeItemAtPath:error:", BOOL>(path, error);
  }
  BOOL createDirectoryAtPath(NSString path, BOOL intermediates, objc::Object attributes,
                             objc::Id* error) const {
    return call<"createDirectoryAtPath:withIntermediateDirectories:attributes:error:", BOOL>(
        path, intermediates, attributes, error);
  }
};
