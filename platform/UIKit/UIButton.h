#pragma once

#include "platform/UIKit/UIControl.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UILabel.h"

enum UIButtonType : NSInteger {
  UIButtonTypeCustom,
  UIButtonTypeSystem,
  UIButtonTypeDetailDisclosure,
  UIButtonTypeInfoLight,
  UIButtonTypeInfoDark,
  UIButtonTypeContactAdd,
  UIButtonTypeRoundedRect = UIButtonTypeSystem,
};

struct UIButton : objc::Bound<UIButton, "UIButton", UIControl> {
  static UIButton buttonWithType(UIButtonType type) {
    return call_class<"buttonWithType:", UIButton>(type);
  }
  UIButton initWithFrame(CGRect frame) const {
    return objc::cast<UIButton>(UIView::initWithFrame(frame));
  }
  UIButtonType buttonType() const { return call<"buttonType", UIButtonType>(); }

  UIImage imageForState(UIControlState state) const {
    return call<"imageForState:", UIImage>(state);
  }
  void setImage(UIImage image, UIControlState state) const {
    call<"setImage:forState:">(image, state);
  }
  UIImage backgroundImageForState(UIControlState state) const {
    return call<"backgroundImageForState:", UIImage>(state);
  }
  void setBackgroundImage(UIImage image, UIControlState state) const {
    call<"setBackgroundImage:forState:">(image, state);
  }
  NSString titleForState(UIControlState state) const {
    return call<"titleForState:", NSString>(state);
  }
  void setTitle(NSString title, UIControlState state) const {
    call<"setTitle:forState:">(title, state);
  }
  UIColor titleColorForState(UIControlState state) const {
    return call<"titleColorForState:", UIColor>(state);
  }
  void setTitleColor(UIColor color, UIControlState state) const {
    call<"setTitleColor:forState:">(color, state);
  }
  NSString currentTitle() const { return call<"currentTitle", NSString>(); }
  UIColor currentTitleColor() const { return call<"currentTitleColor", UIColor>(); }
  UIImage currentImage() const { return call<"currentImage", UIImage>(); }
  UILabel titleLabel() const { return call<"titleLabel", UILabel>(); }
  UIImageView imageView() const { return call<"imageView", UIImageView>(); }

  BOOL adjustsImageWhenHighlighted() const { return call<"adjustsImageWhenHighlighted", BOOL>(); }
  void setAdjustsImageWhenHighlighted(BOOL adjusts) const {
    call<"setAdjustsImageWhenHighlighted:">(adjusts);
  }
  BOOL adjustsImageWhenDisabled() const { return call<"adjustsImageWhenDisabled", BOOL>(); }
  void setAdjustsImageWhenDisabled(BOOL adjusts) const {
    call<"setAdjustsImageWhenDisabled:">(adjusts);
  }
  UIEdgeInsets contentEdgeInsets() const { return call<"contentEdgeInsets", UIEdgeInsets>(); }
  void setContentEdgeInsets(UIEdgeInsets insets) const { call<"setContentEdgeInsets:">(insets); }
  UIEdgeInsets imageEdgeInsets() const { return call<"imageEdgeInsets", UIEdgeInsets>(); }
  void setImageEdgeInsets(UIEdgeInsets insets) const { call<"setImageEdgeInsets:">(insets); }
  UIEdgeInsets titleEdgeInsets() const { return call<"titleEdgeInsets", UIEdgeInsets>(); }
  void setTitleEdgeInsets(UIEdgeInsets insets) const { call<"setTitleEdgeInsets:">(insets); }
  CGRect imageRectForContentRect(CGRect rect) const {
    return call<"imageRectForContentRect:", CGRect>(rect);
  }
  CGRect titleRectForContentRect(CGRect rect) const {
    return call<"titleRectForContentRect:", CGRect>(rect);
  }
};
