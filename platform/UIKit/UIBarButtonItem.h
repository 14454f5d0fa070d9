#pragma once

#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIImage.h"

enum UIBarButtonItemStyle : NSInteger {
  UIBarButtonItemStylePlain = 0,
  UIBarButtonItemStyleBordered = 1,
  UIBarButtonItemStyleDone = 2,
};

/// Describes one button of a bar. It is not a view.
struct UIBarButtonItem : objc::Bound<UIBarButtonItem, "UIBarButtonItem", NSObject> {
  /// The target is not retained; nil searches the responder chain.
  UIBarButtonItem initWithTitle(NSString title, UIBarButtonItemStyle style, objc::Object target,
                                objc::Sel action) const {
    return call<"initWithTitle:style:target:action:", UIBarButtonItem>(title, style, target,
                                                                       action);
  }
  UIBarButtonItem initWithImage(UIImage image, UIBarButtonItemStyle style, objc::Object target,
                                objc::Sel action) const {
    return call<"initWithImage:style:target:action:", UIBarButtonItem>(image, style, target,
                                                                       action);
  }

  NSString title() const { return call<"title", NSString>(); }
  void setTitle(NSString title) const { call<"setTitle:">(title); }
  UIImage image() const { return call<"image", UIImage>(); }
  void setImage(UIImage image) const { call<"setImage:">(image); }
  UIBarButtonItemStyle style() const { return call<"style", UIBarButtonItemStyle>(); }
  void setStyle(UIBarButtonItemStyle style) const { call<"setStyle:">(style); }
  objc::Object target() const { return call<"target", objc::Object>(); }
  void setTarget(objc::Object target) const { call<"setTarget:">(target); }
  objc::Sel action() const { return call<"action", objc::Sel>(); }
  void setAction(objc::Sel action) const { call<"setAction:">(action); }
  BOOL isEnabled() const { return call<"isEnabled", BOOL>(); }
  void setEnabled(BOOL enabled) const { call<"setEnabled:">(enabled); }
  /// Nil means the bar's tint colour.
  UIColor tintColor() const { return call<"tintColor", UIColor>(); }
  void setTintColor(UIColor color) const { call<"setTintColor:">(color); }
};
