#pragma once

#include "platform/UIKit/UIImage.h"

extern "C" {
/// The context that drawing goes to: the last one pushed or begun; null if there is none.
CGContextRef UIGraphicsGetCurrentContext();
void UIGraphicsPushContext(CGContextRef context);
void UIGraphicsPopContext();

/// Begins a transparent picture of `size` points, with one pixel per point.
void UIGraphicsBeginImageContext(CGSize size);
/// A `scale` of 0 means the screen's.
void UIGraphicsBeginImageContextWithOptions(CGSize size, BOOL opaque, CGFloat scale);
void UIGraphicsEndImageContext();

void UIRectFill(CGRect rect);
}

namespace objc::c {
extern "C" Id UIGraphicsGetImageFromCurrentImageContext();
}

/// A picture of what has been drawn so far; nil outside an image context.
inline UIImage UIGraphicsGetImageFromCurrentImageContext() {
  return objc::wrap<UIImage>(objc::c::UIGraphicsGetImageFromCurrentImageContext());
}
