#pragma once

#include "platform/UIKit/UIScreen.h"
#include "platform/UIKit/UIView.h"

using UIWindowLevel = CGFloat;
inline constexpr UIWindowLevel UIWindowLevelNormal = 0;
inline constexpr UIWindowLevel UIWindowLevelStatusBar = 1000;
inline constexpr UIWindowLevel UIWindowLevelAlert = 2000;

struct UIWindow : objc::Bound<UIWindow, "UIWindow", UIView> {
  UIWindow initWithFrame(CGRect frame) const { return call<"initWithFrame:", UIWindow>(frame); }

  UIWindowLevel windowLevel() const { return call<"windowLevel", UIWindowLevel>(); }
  void setWindowLevel(UIWindowLevel level) const { call<"setWindowLevel:">(level); }
  UIScreen screen() const { return call<"screen", UIScreen>(); }
  /// Bodies in UIViewController.h.
  UIViewController rootViewController() const;
  void setRootViewController(UIViewController controller) const;

  BOOL isKeyWindow() const { return call<"isKeyWindow", BOOL>(); }
  void makeKeyWindow() const { call<"makeKeyWindow">(); }
  void makeKeyAndVisible() const { call<"makeKeyAndVisible">(); }
  void becomeKeyWindow() const { call<"becomeKeyWindow">(); }
  void resignKeyWindow() const { call<"resignKeyWindow">(); }
  void sendEvent(UIEvent event) const { call<"sendEvent:">(event); }

  CGPoint convertPointToWindow(CGPoint point, UIWindow window) const {
    return call<"convertPoint:toWindow:", CGPoint>(point, window);
  }
  CGPoint convertPointFromWindow(CGPoint point, UIWindow window) const {
    return call<"convertPoint:fromWindow:", CGPoint>(point, window);
  }

  /// Called when the window is first shown; the result is cached. A secure window also shows over
  /// the lock screen.
  BOOL _shouldCreateContextAsSecure() const { return call<"_shouldCreateContextAsSecure", BOOL>(); }
  BOOL _isSecure() const { return call<"_isSecure", BOOL>(); }
};

inline UIWindow UIView::window() const {
  return call<"window", UIWindow>();
}
inline void UIView::willMoveToWindow(UIWindow window) const {
  call<"willMoveToWindow:">(window);
}
