#pragma once

#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIControl.h"

struct UIPageControl : objc::Bound<UIPageControl, "UIPageControl", UIControl> {
  UIPageControl initWithFrame(CGRect frame) const {
    return call<"initWithFrame:", UIPageControl>(frame);
  }

  NSInteger numberOfPages() const { return call<"numberOfPages", NSInteger>(); }
  void setNumberOfPages(NSInteger pages) const { call<"setNumberOfPages:">(pages); }
  NSInteger currentPage() const { return call<"currentPage", NSInteger>(); }
  void setCurrentPage(NSInteger page) const { call<"setCurrentPage:">(page); }
  BOOL hidesForSinglePage() const { return call<"hidesForSinglePage", BOOL>(); }
  void setHidesForSinglePage(BOOL hides) const { call<"setHidesForSinglePage:">(hides); }
  UIColor pageIndicatorTintColor() const { return call<"pageIndicatorTintColor", UIColor>(); }
  void setPageIndicatorTintColor(UIColor color) const { call<"setPageIndicatorTintColor:">(color); }
  UIColor currentPageIndicatorTintColor() const {
    return call<"currentPageIndicatorTintColor", UIColor>();
  }
  void setCurrentPageIndicatorTintColor(UIColor color) const {
    call<"setCurrentPageIndicatorTintColor:">(color);
  }
  CGSize sizeForNumberOfPages(NSInteger pages) const {
    return call<"sizeForNumberOfPages:", CGSize>(pages);
  }
};
