#pragma once

#include "platform/SpringBoard/SBApplication.h"
#include "platform/UIKit/UIImage.h"

/// What `generateIconImage:` can draw; the home screen's own size is the one in use.
enum SBIconImageFormat : int {
  SBIconImageFormatSmall = 0,
  SBIconImageFormatSpotlight = 1,
  SBIconImageFormatHomeScreen = 2,
};

/// What stands in a slot of the home screen: an application's icon or a folder's.
struct SBIcon : objc::Bound<SBIcon, "SBIcon", NSObject> {
  /// Nil for a folder.
  SBApplication application() const { return call<"application", SBApplication>(); }
  NSString applicationBundleID() const { return call<"applicationBundleID", NSString>(); }
  /// The identifier under which the layout knows the icon.
  NSString nodeIdentifier() const { return call<"nodeIdentifier", NSString>(); }
  NSString displayName() const { return call<"displayName", NSString>(); }
  BOOL isFolderIcon() const { return call<"isFolderIcon", BOOL>(); }
  UIImage generateIconImage(int format) const {
    return call<"generateIconImage:", UIImage>(format);
  }
};
