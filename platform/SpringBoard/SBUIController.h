#pragma once

#include "platform/SpringBoard/SBApplication.h"
#include "platform/UIKit/UIWindow.h"

struct SBUIController : objc::Bound<SBUIController, "SBUIController", NSObject> {
  static SBUIController sharedInstance() { return call_class<"sharedInstance", SBUIController>(); }
  /// The window of the home screen.
  UIWindow window() const { return call<"window", UIWindow>(); }
  /// A press of the Home button. Returns YES if it did something.
  BOOL clickedMenuButton() const { return call<"clickedMenuButton", BOOL>(); }
  /// A double press of the Home button. Returns YES if it did something.
  BOOL handleMenuDoubleTap() const { return call<"handleMenuDoubleTap", BOOL>(); }
  BOOL isAppSwitcherShowing() const { return call<"isAppSwitcherShowing", BOOL>(); }
  void activateApplicationAnimated(SBApplication application) const {
    call<"activateApplicationAnimated:">(application);
  }
};
