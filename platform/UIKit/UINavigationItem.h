#pragma once

#include "platform/UIKit/UIBarButtonItem.h"

struct UIView;

/// What the navigation bar shows for a page while that page is on top.
struct UINavigationItem : objc::Bound<UINavigationItem, "UINavigationItem", NSObject> {
  UINavigationItem initWithTitle(NSString title) const {
    return call<"initWithTitle:", UINavigationItem>(title);
  }

  NSString title() const { return call<"title", NSString>(); }
  void setTitle(NSString title) const { call<"setTitle:">(title); }
  /// Replaces the title. Bodies in UINavigationBar.h.
  UIView titleView() const;
  void setTitleView(UIView view) const;
  /// Replaces the back button.
  UIBarButtonItem leftBarButtonItem() const { return call<"leftBarButtonItem", UIBarButtonItem>(); }
  void setLeftBarButtonItem(UIBarButtonItem item) const { call<"setLeftBarButtonItem:">(item); }
  UIBarButtonItem rightBarButtonItem() const {
    return call<"rightBarButtonItem", UIBarButtonItem>();
  }
  void setRightBarButtonItem(UIBarButtonItem item) const { call<"setRightBarButtonItem:">(item); }
  void setRightBarButtonItem(UIBarButtonItem item, BOOL animated) const {
    call<"setRightBarButtonItem:animated:">(item, animated);
  }
  BOOL hidesBackButton() const { return call<"hidesBackButton", BOOL>(); }
  void setHidesBackButton(BOOL hides) const { call<"setHidesBackButton:">(hides); }
};
