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

/// Pages beside each other, of which a finger brings the next.
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
  /// The page that is shown.
  NSArray viewControllers() const { return call<"viewControllers", NSArray>(); }
  void setViewControllers(NSArray controllers, UIPageViewControllerNavigationDirection direction,
                          BOOL animated, objc::Block<void(BOOL)> completion) const {
    call<"setViewControllers:direction:animated:completion:">(controllers, direction, animated,
                                                              completion);
  }
};

/// Nil is the end. The counts are asked only of one that answers both.
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
