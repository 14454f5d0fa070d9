#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/UIKit/UIFont.h"
#include "platform/UIKit/UITextEnumerations.h"

/// The methods that UIKit adds to strings: `objc::cast<NSStringDrawing>(title).sizeWithFont(font)`.
/// Sizes are in points; drawing goes to the current context of `UIGraphics`.
struct NSStringDrawing : objc::Bound<NSStringDrawing, "NSString", NSString> {
  CGSize sizeWithFont(UIFont font) const { return call<"sizeWithFont:", CGSize>(font); }
  CGSize sizeWithFont(UIFont font, CGSize limit, NSLineBreakMode mode) const {
    return call<"sizeWithFont:constrainedToSize:lineBreakMode:", CGSize>(font, limit, mode);
  }
  CGSize sizeWithAttributes(NSDictionary attributes) const {
    return call<"sizeWithAttributes:", CGSize>(attributes);
  }
  void drawAtPoint(CGPoint point, NSDictionary attributes) const {
    call<"drawAtPoint:withAttributes:">(point, attributes);
  }
  void drawInRect(CGRect rect, NSDictionary attributes) const {
    call<"drawInRect:withAttributes:">(rect, attributes);
  }
  CGSize drawInRect(CGRect rect, UIFont font, NSLineBreakMode mode,
                    NSTextAlignment alignment) const {
    return call<"drawInRect:withFont:lineBreakMode:alignment:", CGSize>(rect, font, mode,
                                                                        alignment);
  }
};
