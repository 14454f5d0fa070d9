#pragma once

#include "objc/block.h"
#include "platform/Foundation/NSArray.h"
#include "platform/QuartzCore/CALayer.h"
#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIGeometry.h"
#include "platform/UIKit/UIResponder.h"
#include "platform/UIKit/UIViewEnumerations.h"

struct UIGestureRecognizer;
struct UIViewController;
struct UIWindow;

struct UIView : objc::Bound<UIView, "UIView", UIResponder> {
  static objc::Class layerClass() { return call_class<"layerClass", objc::Class>(); }
  UIView initWithFrame(CGRect frame) const { return call<"initWithFrame:", UIView>(frame); }
  CALayer layer() const { return call<"layer", CALayer>(); }

  CGRect frame() const { return call<"frame", CGRect>(); }
  void setFrame(CGRect frame) const { call<"setFrame:">(frame); }
  CGRect bounds() const { return call<"bounds", CGRect>(); }
  void setBounds(CGRect bounds) const { call<"setBounds:">(bounds); }
  CGPoint center() const { return call<"center", CGPoint>(); }
  void setCenter(CGPoint center) const { call<"setCenter:">(center); }
  CGAffineTransform transform() const { return call<"transform", CGAffineTransform>(); }
  void setTransform(CGAffineTransform transform) const { call<"setTransform:">(transform); }
  CGFloat contentScaleFactor() const { return call<"contentScaleFactor", CGFloat>(); }
  void setContentScaleFactor(CGFloat scale) const { call<"setContentScaleFactor:">(scale); }

  CGFloat alpha() const { return call<"alpha", CGFloat>(); }
  void setAlpha(CGFloat alpha) const { call<"setAlpha:">(alpha); }
  BOOL isHidden() const { return call<"isHidden", BOOL>(); }
  void setHidden(BOOL hidden) const { call<"setHidden:">(hidden); }
  BOOL isOpaque() const { return call<"isOpaque", BOOL>(); }
  void setOpaque(BOOL opaque) const { call<"setOpaque:">(opaque); }
  UIColor backgroundColor() const { return call<"backgroundColor", UIColor>(); }
  void setBackgroundColor(UIColor color) const { call<"setBackgroundColor:">(color); }
  UIColor tintColor() const { return call<"tintColor", UIColor>(); }
  void setTintColor(UIColor color) const { call<"setTintColor:">(color); }
  void tintColorDidChange() const { call<"tintColorDidChange">(); }
  UIViewContentMode contentMode() const { return call<"contentMode", UIViewContentMode>(); }
  void setContentMode(UIViewContentMode mode) const { call<"setContentMode:">(mode); }
  BOOL clipsToBounds() const { return call<"clipsToBounds", BOOL>(); }
  void setClipsToBounds(BOOL clips) const { call<"setClipsToBounds:">(clips); }
  BOOL clearsContextBeforeDrawing() const { return call<"clearsContextBeforeDrawing", BOOL>(); }
  void setClearsContextBeforeDrawing(BOOL clears) const {
    call<"setClearsContextBeforeDrawing:">(clears);
  }

  BOOL isUserInteractionEnabled() const { return call<"isUserInteractionEnabled", BOOL>(); }
  void setUserInteractionEnabled(BOOL enabled) const {
    call<"setUserInteractionEnabled:">(enabled);
  }
  BOOL isMultipleTouchEnabled() const { return call<"isMultipleTouchEnabled", BOOL>(); }
  void setMultipleTouchEnabled(BOOL enabled) const { call<"setMultipleTouchEnabled:">(enabled); }
  BOOL isExclusiveTouch() const { return call<"isExclusiveTouch", BOOL>(); }
  void setExclusiveTouch(BOOL exclusive) const { call<"setExclusiveTouch:">(exclusive); }
  NSInteger tag() const { return call<"tag", NSInteger>(); }
  void setTag(NSInteger tag) const { call<"setTag:">(tag); }
  UIViewAutoresizing autoresizingMask() const {
    return call<"autoresizingMask", UIViewAutoresizing>();
  }
  void setAutoresizingMask(UIViewAutoresizing mask) const { call<"setAutoresizingMask:">(mask); }
  BOOL autoresizesSubviews() const { return call<"autoresizesSubviews", BOOL>(); }
  void setAutoresizesSubviews(BOOL resizes) const { call<"setAutoresizesSubviews:">(resizes); }

  // The view hierarchy.
  UIView superview() const { return call<"superview", UIView>(); }
  /// Body in UIWindow.h.
  UIWindow window() const;
  NSArray subviews() const { return call<"subviews", NSArray>(); }
  void addSubview(UIView view) const { call<"addSubview:">(view); }
  void insertSubview(UIView view, NSInteger index) const {
    call<"insertSubview:atIndex:">(view, index);
  }
  void insertSubviewAboveSubview(UIView view, UIView sibling) const {
    call<"insertSubview:aboveSubview:">(view, sibling);
  }
  void insertSubviewBelowSubview(UIView view, UIView sibling) const {
    call<"insertSubview:belowSubview:">(view, sibling);
  }
  void exchangeSubviewAtIndex(NSInteger first, NSInteger second) const {
    call<"exchangeSubviewAtIndex:withSubviewAtIndex:">(first, second);
  }
  void bringSubviewToFront(UIView view) const { call<"bringSubviewToFront:">(view); }
  void sendSubviewToBack(UIView view) const { call<"sendSubviewToBack:">(view); }
  void removeFromSuperview() const { call<"removeFromSuperview">(); }
  UIView viewWithTag(NSInteger tag) const { return call<"viewWithTag:", UIView>(tag); }
  BOOL isDescendantOfView(UIView view) const { return call<"isDescendantOfView:", BOOL>(view); }
  void didAddSubview(UIView view) const { call<"didAddSubview:">(view); }
  void willRemoveSubview(UIView view) const { call<"willRemoveSubview:">(view); }
  void willMoveToSuperview(UIView view) const { call<"willMoveToSuperview:">(view); }
  void didMoveToSuperview() const { call<"didMoveToSuperview">(); }
  /// Body in UIWindow.h.
  void willMoveToWindow(UIWindow window) const;
  void didMoveToWindow() const { call<"didMoveToWindow">(); }

  // Layout and drawing.
  void setNeedsLayout() const { call<"setNeedsLayout">(); }
  void layoutIfNeeded() const { call<"layoutIfNeeded">(); }
  void layoutSubviews() const { call<"layoutSubviews">(); }
  void setNeedsDisplay() const { call<"setNeedsDisplay">(); }
  void setNeedsDisplayInRect(CGRect rect) const { call<"setNeedsDisplayInRect:">(rect); }
  void drawRect(CGRect rect) const { call<"drawRect:">(rect); }
  CGSize sizeThatFits(CGSize size) const { return call<"sizeThatFits:", CGSize>(size); }
  void sizeToFit() const { call<"sizeToFit">(); }
  CGSize intrinsicContentSize() const { return call<"intrinsicContentSize", CGSize>(); }
  void invalidateIntrinsicContentSize() const { call<"invalidateIntrinsicContentSize">(); }

  // Points and touches.
  UIView hitTest(CGPoint point, UIEvent event) const {
    return call<"hitTest:withEvent:", UIView>(point, event);
  }
  BOOL pointInside(CGPoint point, UIEvent event) const {
    return call<"pointInside:withEvent:", BOOL>(point, event);
  }
  CGPoint convertPointToView(CGPoint point, UIView view) const {
    return call<"convertPoint:toView:", CGPoint>(point, view);
  }
  CGPoint convertPointFromView(CGPoint point, UIView view) const {
    return call<"convertPoint:fromView:", CGPoint>(point, view);
  }
  CGRect convertRectToView(CGRect rect, UIView view) const {
    return call<"convertRect:toView:", CGRect>(rect, view);
  }
  CGRect convertRectFromView(CGRect rect, UIView view) const {
    return call<"convertRect:fromView:", CGRect>(rect, view);
  }
  NSArray gestureRecognizers() const { return call<"gestureRecognizers", NSArray>(); }
  void setGestureRecognizers(NSArray recognizers) const {
    call<"setGestureRecognizers:">(recognizers);
  }
  /// Bodies of these in UIGestureRecognizer.h.
  void addGestureRecognizer(UIGestureRecognizer recognizer) const;
  void removeGestureRecognizer(UIGestureRecognizer recognizer) const;
  BOOL gestureRecognizerShouldBegin(UIGestureRecognizer recognizer) const;

  // Block animations: durations and delays in seconds.
  static void animateWithDuration(double duration, objc::Block<void()> animations) {
    call_class<"animateWithDuration:animations:">(duration, animations);
  }
  static void animateWithDuration(double duration, objc::Block<void()> animations,
                                  objc::Block<void(BOOL)> completion) {
    call_class<"animateWithDuration:animations:completion:">(duration, animations, completion);
  }
  static void animateWithDuration(double duration, double delay, UIViewAnimationOptions options,
                                  objc::Block<void()> animations,
                                  objc::Block<void(BOOL)> completion) {
    call_class<"animateWithDuration:delay:options:animations:completion:">(duration, delay, options,
                                                                           animations, completion);
  }
  static void animateWithDuration(double duration, double delay, CGFloat damping, CGFloat velocity,
                                  UIViewAnimationOptions options, objc::Block<void()> animations,
                                  objc::Block<void(BOOL)> completion) {
    call_class<"animateWithDuration:delay:usingSpringWithDamping:initialSpringVelocity:options:"
               "animations:completion:">(duration, delay, damping, velocity, options, animations,
                                         completion);
  }
  static void performWithoutAnimation(objc::Block<void()> actions) {
    call_class<"performWithoutAnimation:">(actions);
  }
  static void setAnimationsEnabled(BOOL enabled) { call_class<"setAnimationsEnabled:">(enabled); }
  static BOOL areAnimationsEnabled() { return call_class<"areAnimationsEnabled", BOOL>(); }

  objc::Object actionForLayer(CALayer layer, NSString key) const {
    return call<"actionForLayer:forKey:", objc::Object>(layer, key);
  }
};
