#pragma once

#include "platform/Foundation/NSArray.h"
#include "platform/SpringBoard/SBApplication.h"

struct SBApplicationController
    : objc::Bound<SBApplicationController, "SBApplicationController", NSObject> {
  static SBApplicationController sharedInstance() {
    return call_class<"sharedInstance", SBApplicationController>();
  }
  /// Returns nil if no such application is installed.
  SBApplication applicationWithBundleIdentifier(NSString identifier) const {
    return call<"applicationWithBundleIdentifier:", SBApplication>(identifier);
  }
  NSArray allApplications() const { return call<"allApplications", NSArray>(); }
  void uninstallApplication(SBApplication application) const {
    call<"uninstallApplication:">(application);
  }
};
