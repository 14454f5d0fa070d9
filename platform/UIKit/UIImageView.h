#pragma once

#include "platform/UIKit/UIImage.h"
#include "platform/UIKit/UIView.h"

struct UIImageView : objc::Bound<UIImageView, "UIImageView", UIView> {
  UIImageView initWithFrame(CGRect frame) const {
    return objc::cast<UIImageView>(UIView::initWithFrame(frame));
  }
  /// The view takes the image's size.
  UIImageView initWithImage(UIImage image) const {
    return call<"initWithImage:", UIImageView>(image);
  }
  UIImage image() const { return call<"image", UIImage>(); }
  void setImage(UIImage image) const { call<"setImage:">(image); }
  UIImage highlightedImage() const { return call<"highlightedImage", UIImage>(); }
  void setHighlightedImage(UIImage image) const { call<"setHighlightedImage:">(image); }
  BOOL isHighlighted() const { return call<"isHighlighted", BOOL>(); }
  void setHighlighted(BOOL highlighted) const { call<"setHighlighted:">(highlighted); }
};
