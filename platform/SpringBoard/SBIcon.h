#pragma once

#include "platform/SpringBoard/SBApplication.h"
#include "platform/UIKit/UIImage.h"

/// The sizes that `generateIconImage:` can draw. Only the home screen's own size is used.
enum SBIconImageFormat : int {
  SBIconImageFormatSmall = 0,
  SBIconImageFormatSpotlight = 1,
  SBIconImageFormatHomeScreen = 2,
};

/// The occupant of a slot on the home screen: an application's icon or a folder's.
struct SBIcon : objc::Bound<SBIcon, "SBIcon", NSObject> {
  /// Nil for a folder.
  SBApplication application() const { return call<"application", SBApplication>(); }
  NSString applicationBundleID() const { return call<"applicationBundleID", NSString>(); }
  /// The icon's identifier in the layout.
  NSString nodeIdentifier() const { return call<"nodeIdentifier", NSString>(); }
  NSString displayName() const { return call<"displayName", NSString>(); }
  BOOL isFolderIcon() const { return call<"isFolderIcon", BOOL>(); }
  UIImage generateIconImage(int format) const {
    return call<"generateIconImage:", UIImage>(format);
  }
};
