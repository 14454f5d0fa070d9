#pragma once

#include "platform/Foundation/NSArray.h"
#include "platform/SpringBoard/SBIcon.h"

/// Every icon of the home screen and its position.
struct SBIconModel : objc::Bound<SBIconModel, "SBIconModel", NSObject> {
  /// The icon of the application with that identifier; nil if it is not installed.
  SBIcon expectedIconForDisplayIdentifier(NSString identifier) const {
    return call<"expectedIconForDisplayIdentifier:", SBIcon>(identifier);
  }
  SBIcon applicationIconForBundleIdentifier(NSString identifier) const {
    return call<"applicationIconForBundleIdentifier:", SBIcon>(identifier);
  }
  NSArray leafIcons() const { return call<"leafIcons", NSArray>(); }
};
