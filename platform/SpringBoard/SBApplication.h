#pragma once

#include "platform/Foundation/NSString.h"

/// An installed application.
struct SBApplication : objc::Bound<SBApplication, "SBApplication", NSObject> {
  NSString bundleIdentifier() const { return call<"bundleIdentifier", NSString>(); }
  NSString displayName() const { return call<"displayName", NSString>(); }
  /// The application's folder.
  NSString path() const { return call<"path", NSString>(); }
};
