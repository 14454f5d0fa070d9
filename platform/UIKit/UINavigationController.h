#pragma once

#include "platform/UIKit/UIGestureRecognizer.h"
#include "platform/UIKit/UINavigationBar.h"
#include "platform/UIKit/UIViewController.h"

struct UINavigationController
    : objc::Bound<UINavigationController, "UINavigationController", UIViewController> {
  UINavigationController initWithRootViewController(UIViewController root) const {
    return call<"initWithRootViewController:", UINavigationController>(root);
  }

  NSArray viewControllers() const { return call<"viewControllers", NSArray>(); }
  void setViewControllers(NSArray controllers, BOOL animated) const {
    call<"setViewControllers:animated:">(controllers, animated);
  }
  UIViewController topViewController() const {
    return call<"topViewController", UIViewController>();
  }
  /// The top view controller, or the one presented over it.
  UIViewController visibleViewController() const {
    return call<"visibleViewController", UIViewController>();
  }
  void pushViewController(UIViewController controller, BOOL animated) const {
    call<"pushViewController:animated:">(controller, animated);
  }
  /// Returns the controller that was popped, or nil if it is the root.
  UIViewController popViewControllerAnimated(BOOL animated) const {
    return call<"popViewControllerAnimated:", UIViewController>(animated);
  }
  NSArray popToViewController(UIViewController controller, BOOL animated) const {
    return call<"popToViewController:animated:", NSArray>(controller, animated);
  }
  NSArray popToRootViewControllerAnimated(BOOL animated) const {
    return call<"popToRootViewControllerAnimated:", NSArray>(animated);
  }

  UINavigationBar navigationBar() const { return call<"navigationBar", UINavigationBar>(); }
  BOOL isNavigationBarHidden() const { return call<"isNavigationBarHidden", BOOL>(); }
  void setNavigationBarHidden(BOOL hidden) const { call<"setNavigationBarHidden:">(hidden); }
  void setNavigationBarHidden(BOOL hidden, BOOL animated) const {
    call<"setNavigationBarHidden:animated:">(hidden, animated);
  }
  /// The swipe from the left edge that drags the page away.
  UIGestureRecognizer interactivePopGestureRecognizer() const {
    return call<"interactivePopGestureRecognizer", UIGestureRecognizer>();
  }
};

inline UINavigationController UIViewController::navigationController() const {
  return call<"navigationController", UINavigationController>();
}
