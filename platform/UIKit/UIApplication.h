#pragma once

#include "platform/Foundation/NSURL.h"
#include "platform/UIKit/UIWindow.h"

enum UIInterfaceOrientation : NSInteger {
  UIInterfaceOrientationUnknown,
  UIInterfaceOrientationPortrait,
  UIInterfaceOrientationPortraitUpsideDown,
  UIInterfaceOrientationLandscapeRight,
  UIInterfaceOrientationLandscapeLeft,
};

struct UIApplication : objc::Bound<UIApplication, "UIApplication", UIResponder> {
  static UIApplication sharedApplication() {
    return call_class<"sharedApplication", UIApplication>();
  }
  objc::Object delegate() const { return call<"delegate", objc::Object>(); }
  void setDelegate(objc::Object delegate) const { call<"setDelegate:">(delegate); }

  UIWindow keyWindow() const { return call<"keyWindow", UIWindow>(); }
  /// The visible windows, back to front.
  NSArray windows() const { return call<"windows", NSArray>(); }
  void sendEvent(UIEvent event) const { call<"sendEvent:">(event); }
  /// A nil target searches the responder chain, from the sender up. Returns whether any responder
  /// took the action.
  BOOL sendAction(objc::Sel action, objc::Object target, objc::Object sender, UIEvent event) const {
    return call<"sendAction:to:from:forEvent:", BOOL>(action, target, sender, event);
  }

  /// Whether anything handles URLs of this kind.
  BOOL canOpenURL(NSURL url) const { return call<"canOpenURL:", BOOL>(url); }
  BOOL openURL(NSURL url) const { return call<"openURL:", BOOL>(url); }

  BOOL isIgnoringInteractionEvents() const { return call<"isIgnoringInteractionEvents", BOOL>(); }
  void beginIgnoringInteractionEvents() const { call<"beginIgnoringInteractionEvents">(); }
  void endIgnoringInteractionEvents() const { call<"endIgnoringInteractionEvents">(); }

  BOOL isStatusBarHidden() const { return call<"isStatusBarHidden", BOOL>(); }
  void setStatusBarHidden(BOOL hidden) const { call<"setStatusBarHidden:">(hidden); }
  /// In points; 0 while the status bar is hidden.
  CGFloat statusBarHeight() const { return call<"statusBarHeight", CGFloat>(); }
  CGRect statusBarFrame() const { return call<"statusBarFrame", CGRect>(); }
  UIInterfaceOrientation statusBarOrientation() const {
    return call<"statusBarOrientation", UIInterfaceOrientation>();
  }
};
