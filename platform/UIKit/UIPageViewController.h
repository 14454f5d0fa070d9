#pragma once

#include "platform/Foundation/NSDictionary.h"
#include "platform/UIKit/UIViewController.h"

enum UIPageViewControllerNavigationOrientation : NSInteger {
  UIPageViewControllerNavigationOrientationHorizontal = 0,
  UIPageViewControllerNavigationOrientationVertical = 1,
};

enum UIPageViewControllerNavigationDirection : NSInteger {
  UIPageViewControllerNavigationDirectionForward = 0,
  UIPageViewControllerNavigationDirectionReverse = 1,
};

enum UIPageViewControllerTransitionStyle : NSInteger {
  UIPageViewControllerTransitionStylePageCurl = 0,
  UIPageViewControllerTransitionStyleScroll = 1,
};

/// Shows pages side by side; a swipe turns to the next or previous one.
struct UIPageViewController
    : objc::Bound<UIPageViewController, "UIPageViewController", UIViewController> {
  UIPageViewController initWithTransitionStyle(
      UIPageViewControllerTransitionStyle style,
      UIPageViewControllerNavigationOrientation orientation, NSDictionary options) const {
    return call<"initWithTransitionStyle:navigationOrientation:options:", UIPageViewController>(
        style, orientation, options);
  }

  objc::Object dataSource() const { return call<"dataSource", objc::Object>(); }
  void setDataSource(objc::Object source) const { call<"setDataSource:">(source); }
  objc::Object delegate() const { return call<"delegate", objc::Object>(); }
  void setDelegate(objc::Object delegate) const { call<"setDelegate:">(delegate); }
  /// The page that is shown, as an array.
  NSArray viewControllers() const { return call<"viewControllers", NSArray>(); }
  void setViewControllers(NSArray controllers, UIPageViewControllerNavigationDirection direction,
                          BOOL animated, objc::Block<void(BOOL)> completion) const {
    call<"setViewControllers:direction:animated:completion:">(controllers, direction, animated,
                                                              completion);
  }
};

/// Nil means that there is no further page. The counts are requested only if both are implemented.
struct UIPageViewControllerDataSource
    : objc::Bound<UIPageViewControllerDataSource, "UIPageViewControllerDataSource", NSObject> {
  UIViewController viewControllerBefore(UIPageViewController pages, UIViewController page) const {
    return call<"pageViewController:viewControllerBeforeViewController:", UIViewController>(pages,
                                                                                            page);
  }
  UIViewController viewControllerAfter(UIPageViewController pages, UIViewController page) const {
    return call<"pageViewController:viewControllerAfterViewController:", UIViewController>(pages,
                                                                                           page);
  }
  NSInteger presentationCount(UIPageViewController pages) const {
    return call<"presentationCountForPageViewController:", NSInteger>(pages);
  }
  NSInteger presentationIndex(UIPageViewController pages) const {
    return call<"presentationIndexForPageViewController:", NSInteger>(pages);
  }
};

/// Every method is optional.
struct UIPageViewControllerDelegate
    : objc::Bound<UIPageViewControllerDelegate, "UIPageViewControllerDelegate", NSObject> {
  void didFinishAnimating(UIPageViewController pages, BOOL finished, NSArray previous,
                          BOOL completed) const {
    call<"pageViewController:didFinishAnimating:previousViewControllers:transitionCompleted:">(
        pages, finished, previous, completed);
  }
};
