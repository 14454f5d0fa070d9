#pragma once

#include "platform/UIKit/UIGeometry.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "platform/UIKit/UIView.h"

enum UIScrollViewIndicatorStyle : NSInteger {
  UIScrollViewIndicatorStyleDefault = 0,
  UIScrollViewIndicatorStyleBlack = 1,
  UIScrollViewIndicatorStyleWhite = 2,
};

enum UIScrollViewKeyboardDismissMode : NSInteger {
  UIScrollViewKeyboardDismissModeNone = 0,
  UIScrollViewKeyboardDismissModeOnDrag = 1,
  UIScrollViewKeyboardDismissModeInteractive = 2,
};

/// The fraction of the velocity that remains after one millisecond.
inline constexpr CGFloat UIScrollViewDecelerationRateNormal = 0.998;
inline constexpr CGFloat UIScrollViewDecelerationRateFast = 0.99;

struct UIScrollView : objc::Bound<UIScrollView, "UIScrollView", UIView> {
  UIScrollView initWithFrame(CGRect frame) const {
    return call<"initWithFrame:", UIScrollView>(frame);
  }

  CGPoint contentOffset() const { return call<"contentOffset", CGPoint>(); }
  void setContentOffset(CGPoint offset) const { call<"setContentOffset:">(offset); }
  void setContentOffset(CGPoint offset, BOOL animated) const {
    call<"setContentOffset:animated:">(offset, animated);
  }
  void scrollRectToVisible(CGRect rect, BOOL animated) const {
    call<"scrollRectToVisible:animated:">(rect, animated);
  }
  CGSize contentSize() const { return call<"contentSize", CGSize>(); }
  void setContentSize(CGSize size) const { call<"setContentSize:">(size); }
  UIEdgeInsets contentInset() const { return call<"contentInset", UIEdgeInsets>(); }
  void setContentInset(UIEdgeInsets inset) const { call<"setContentInset:">(inset); }

  objc::Object delegate() const { return call<"delegate", objc::Object>(); }
  void setDelegate(objc::Object delegate) const { call<"setDelegate:">(delegate); }

  BOOL isPagingEnabled() const { return call<"isPagingEnabled", BOOL>(); }
  void setPagingEnabled(BOOL enabled) const { call<"setPagingEnabled:">(enabled); }
  BOOL isScrollEnabled() const { return call<"isScrollEnabled", BOOL>(); }
  void setScrollEnabled(BOOL enabled) const { call<"setScrollEnabled:">(enabled); }
  BOOL isDirectionalLockEnabled() const { return call<"isDirectionalLockEnabled", BOOL>(); }
  void setDirectionalLockEnabled(BOOL enabled) const {
    call<"setDirectionalLockEnabled:">(enabled);
  }
  BOOL bounces() const { return call<"bounces", BOOL>(); }
  void setBounces(BOOL bounces) const { call<"setBounces:">(bounces); }
  BOOL alwaysBounceVertical() const { return call<"alwaysBounceVertical", BOOL>(); }
  void setAlwaysBounceVertical(BOOL bounces) const { call<"setAlwaysBounceVertical:">(bounces); }
  BOOL alwaysBounceHorizontal() const { return call<"alwaysBounceHorizontal", BOOL>(); }
  void setAlwaysBounceHorizontal(BOOL bounces) const {
    call<"setAlwaysBounceHorizontal:">(bounces);
  }
  CGFloat decelerationRate() const { return call<"decelerationRate", CGFloat>(); }
  void setDecelerationRate(CGFloat rate) const { call<"setDecelerationRate:">(rate); }

  BOOL showsHorizontalScrollIndicator() const {
    return call<"showsHorizontalScrollIndicator", BOOL>();
  }
  void setShowsHorizontalScrollIndicator(BOOL shows) const {
    call<"setShowsHorizontalScrollIndicator:">(shows);
  }
  BOOL showsVerticalScrollIndicator() const { return call<"showsVerticalScrollIndicator", BOOL>(); }
  void setShowsVerticalScrollIndicator(BOOL shows) const {
    call<"setShowsVerticalScrollIndicator:">(shows);
  }
  UIEdgeInsets scrollIndicatorInsets() const {
    return call<"scrollIndicatorInsets", UIEdgeInsets>();
  }
  void setScrollIndicatorInsets(UIEdgeInsets insets) const {
    call<"setScrollIndicatorInsets:">(insets);
  }
  UIScrollViewIndicatorStyle indicatorStyle() const {
    return call<"indicatorStyle", UIScrollViewIndicatorStyle>();
  }
  void setIndicatorStyle(UIScrollViewIndicatorStyle style) const {
    call<"setIndicatorStyle:">(style);
  }
  void flashScrollIndicators() const { call<"flashScrollIndicators">(); }

  BOOL scrollsToTop() const { return call<"scrollsToTop", BOOL>(); }
  void setScrollsToTop(BOOL scrolls) const { call<"setScrollsToTop:">(scrolls); }
  BOOL delaysContentTouches() const { return call<"delaysContentTouches", BOOL>(); }
  void setDelaysContentTouches(BOOL delays) const { call<"setDelaysContentTouches:">(delays); }
  BOOL canCancelContentTouches() const { return call<"canCancelContentTouches", BOOL>(); }
  void setCanCancelContentTouches(BOOL can) const { call<"setCanCancelContentTouches:">(can); }
  BOOL touchesShouldCancelInContentView(UIView view) const {
    return call<"touchesShouldCancelInContentView:", BOOL>(view);
  }
  UIScrollViewKeyboardDismissMode keyboardDismissMode() const {
    return call<"keyboardDismissMode", UIScrollViewKeyboardDismissMode>();
  }
  void setKeyboardDismissMode(UIScrollViewKeyboardDismissMode mode) const {
    call<"setKeyboardDismissMode:">(mode);
  }

  BOOL isTracking() const { return call<"isTracking", BOOL>(); }
  BOOL isDragging() const { return call<"isDragging", BOOL>(); }
  BOOL isDecelerating() const { return call<"isDecelerating", BOOL>(); }
  UIPanGestureRecognizer panGestureRecognizer() const {
    return call<"panGestureRecognizer", UIPanGestureRecognizer>();
  }
};

/// The messages to a scroll view's delegate. Every method is optional and is sent only if the
/// delegate responds to it.
struct UIScrollViewDelegate : objc::Bound<UIScrollViewDelegate, "UIScrollViewDelegate", NSObject> {
  void scrollViewDidScroll(UIScrollView view) const { call<"scrollViewDidScroll:">(view); }
  void scrollViewWillBeginDragging(UIScrollView view) const {
    call<"scrollViewWillBeginDragging:">(view);
  }
  /// The velocity is in points per millisecond. The delegate may change the target offset.
  void scrollViewWillEndDragging(UIScrollView view, CGPoint velocity, CGPoint* target) const {
    call<"scrollViewWillEndDragging:withVelocity:targetContentOffset:">(view, velocity, target);
  }
  void scrollViewDidEndDragging(UIScrollView view, BOOL will_decelerate) const {
    call<"scrollViewDidEndDragging:willDecelerate:">(view, will_decelerate);
  }
  void scrollViewWillBeginDecelerating(UIScrollView view) const {
    call<"scrollViewWillBeginDecelerating:">(view);
  }
  void scrollViewDidEndDecelerating(UIScrollView view) const {
    call<"scrollViewDidEndDecelerating:">(view);
  }
  void scrollViewDidEndScrollingAnimation(UIScrollView view) const {
    call<"scrollViewDidEndScrollingAnimation:">(view);
  }
};
