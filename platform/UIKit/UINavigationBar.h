#pragma once

#include "platform/Foundation/NSArray.h"
#include "platform/UIKit/UINavigationItem.h"
#include "platform/UIKit/UIView.h"

struct UINavigationBar : objc::Bound<UINavigationBar, "UINavigationBar", UIView> {
  UINavigationBar initWithFrame(CGRect frame) const {
    return call<"initWithFrame:", UINavigationBar>(frame);
  }

  /// From the root's item to the one that is shown.
  NSArray items() const { return call<"items", NSArray>(); }
  void setItems(NSArray items) const { call<"setItems:">(items); }
  UINavigationItem topItem() const { return call<"topItem", UINavigationItem>(); }
  UINavigationItem backItem() const { return call<"backItem", UINavigationItem>(); }
  UIColor barTintColor() const { return call<"barTintColor", UIColor>(); }
  void setBarTintColor(UIColor color) const { call<"setBarTintColor:">(color); }
};

inline UIView UINavigationItem::titleView() const {
  return call<"titleView", UIView>();
}
inline void UINavigationItem::setTitleView(UIView view) const {
  call<"setTitleView:">(view);
}
