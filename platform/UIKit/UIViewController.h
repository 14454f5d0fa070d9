#pragma once

#include "platform/UIKit/UIApplication.h"
#include "platform/UIKit/UINavigationItem.h"
#include "platform/UIKit/UIWindow.h"

struct UINavigationController;

enum UIModalPresentationStyle : NSInteger {
  UIModalPresentationFullScreen,
  UIModalPresentationPageSheet,
  UIModalPresentationFormSheet,
  UIModalPresentationCurrentContext,
  UIModalPresentationCustom,
  UIModalPresentationOverFullScreen,
  UIModalPresentationOverCurrentContext,
};

struct UIViewController : objc::Bound<UIViewController, "UIViewController", UIResponder> {
  UIView view() const { return call<"view", UIView>(); }
  void setView(UIView view) const { call<"setView:">(view); }
  BOOL isViewLoaded() const { return call<"isViewLoaded", BOOL>(); }
  void loadView() const { call<"loadView">(); }
  void viewDidLoad() const { call<"viewDidLoad">(); }
  void viewWillAppear(BOOL animated) const { call<"viewWillAppear:">(animated); }
  void viewDidAppear(BOOL animated) const { call<"viewDidAppear:">(animated); }
  void viewWillDisappear(BOOL animated) const { call<"viewWillDisappear:">(animated); }
  void viewDidDisappear(BOOL animated) const { call<"viewDidDisappear:">(animated); }
  void viewWillLayoutSubviews() const { call<"viewWillLayoutSubviews">(); }
  void viewDidLayoutSubviews() const { call<"viewDidLayoutSubviews">(); }
  NSString title() const { return call<"title", NSString>(); }
  void setTitle(NSString title) const { call<"setTitle:">(title); }
  BOOL shouldAutorotate() const { return call<"shouldAutorotate", BOOL>(); }
  NSUInteger supportedInterfaceOrientations() const {
    return call<"supportedInterfaceOrientations", NSUInteger>();
  }
  /// For callers that do not know supported orientations.
  BOOL shouldAutorotateToInterfaceOrientation(UIInterfaceOrientation orientation) const {
    return call<"shouldAutorotateToInterfaceOrientation:", BOOL>(orientation);
  }
  UIInterfaceOrientation preferredInterfaceOrientationForPresentation() const {
    return call<"preferredInterfaceOrientationForPresentation", UIInterfaceOrientation>();
  }
  UIInterfaceOrientation interfaceOrientation() const {
    return call<"interfaceOrientation", UIInterfaceOrientation>();
  }

  /// What a navigation bar shows for this controller; made when first requested.
  UINavigationItem navigationItem() const { return call<"navigationItem", UINavigationItem>(); }
  /// The navigation controller whose stack contains it or one of its parents; nil if there is none.
  /// Body in UINavigationController.h.
  UINavigationController navigationController() const;
  /// Whether the page's first view, if it is a scroll view, gets insets for the bars.
  BOOL automaticallyAdjustsScrollViewInsets() const {
    return call<"automaticallyAdjustsScrollViewInsets", BOOL>();
  }
  void setAutomaticallyAdjustsScrollViewInsets(BOOL adjusts) const {
    call<"setAutomaticallyAdjustsScrollViewInsets:">(adjusts);
  }

  UIViewController parentViewController() const {
    return call<"parentViewController", UIViewController>();
  }
  NSArray childViewControllers() const { return call<"childViewControllers", NSArray>(); }
  void addChildViewController(UIViewController child) const {
    call<"addChildViewController:">(child);
  }
  void removeFromParentViewController() const { call<"removeFromParentViewController">(); }
  void willMoveToParentViewController(UIViewController parent) const {
    call<"willMoveToParentViewController:">(parent);
  }
  void didMoveToParentViewController(UIViewController parent) const {
    call<"didMoveToParentViewController:">(parent);
  }

  UIModalPresentationStyle modalPresentationStyle() const {
    return call<"modalPresentationStyle", UIModalPresentationStyle>();
  }
  void setModalPresentationStyle(UIModalPresentationStyle style) const {
    call<"setModalPresentationStyle:">(style);
  }
  UIViewController presentedViewController() const {
    return call<"presentedViewController", UIViewController>();
  }
  UIViewController presentingViewController() const {
    return call<"presentingViewController", UIViewController>();
  }
  void presentViewController(UIViewController controller, BOOL animated,
                             objc::Block<void()> completion) const {
    call<"presentViewController:animated:completion:">(controller, animated, completion);
  }
  void dismissViewControllerAnimated(BOOL animated, objc::Block<void()> completion) const {
    call<"dismissViewControllerAnimated:completion:">(animated, completion);
  }
  void presentModalViewController(UIViewController controller, BOOL animated) const {
    call<"presentModalViewController:animated:">(controller, animated);
  }
  void dismissModalViewControllerAnimated(BOOL animated) const {
    call<"dismissModalViewControllerAnimated:">(animated);
  }
};

inline UIViewController UIWindow::rootViewController() const {
  return call<"rootViewController", UIViewController>();
}
inline void UIWindow::setRootViewController(UIViewController controller) const {
  call<"setRootViewController:">(controller);
}
