#pragma once

#include "platform/Activator/Activator.h"
#include "platform/UIKit/UIViewController.h"

/// The page on which the user chooses the gestures of one listener.
struct LAListenerSettingsViewController
    : objc::Bound<LAListenerSettingsViewController, "LAListenerSettingsViewController",
                  UIViewController, kActivatorImage> {
  NSString listenerName() const { return call<"listenerName", NSString>(); }
  void setListenerName(NSString name) const { call<"setListenerName:">(name); }
};
