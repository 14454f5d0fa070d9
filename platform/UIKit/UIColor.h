#pragma once

#include "platform/CoreGraphics/CGTypes.h"
#include "platform/Foundation/NSObject.h"

struct UIImage;

struct UIColor : objc::Bound<UIColor, "UIColor", NSObject> {
  static UIColor blackColor() { return call_class<"blackColor", UIColor>(); }
  static UIColor darkGrayColor() { return call_class<"darkGrayColor", UIColor>(); }
  static UIColor lightGrayColor() { return call_class<"lightGrayColor", UIColor>(); }
  static UIColor whiteColor() { return call_class<"whiteColor", UIColor>(); }
  static UIColor grayColor() { return call_class<"grayColor", UIColor>(); }
  static UIColor redColor() { return call_class<"redColor", UIColor>(); }
  static UIColor greenColor() { return call_class<"greenColor", UIColor>(); }
  static UIColor blueColor() { return call_class<"blueColor", UIColor>(); }
  static UIColor cyanColor() { return call_class<"cyanColor", UIColor>(); }
  static UIColor yellowColor() { return call_class<"yellowColor", UIColor>(); }
  static UIColor magentaColor() { return call_class<"magentaColor", UIColor>(); }
  static UIColor orangeColor() { return call_class<"orangeColor", UIColor>(); }
  static UIColor purpleColor() { return call_class<"purpleColor", UIColor>(); }
  static UIColor brownColor() { return call_class<"brownColor", UIColor>(); }
  static UIColor clearColor() { return call_class<"clearColor", UIColor>(); }

  /// Components are from 0 to 1.
  static UIColor colorWithWhite(CGFloat white, CGFloat alpha) {
    return call_class<"colorWithWhite:alpha:", UIColor>(white, alpha);
  }
  static UIColor colorWithRed(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha) {
    return call_class<"colorWithRed:green:blue:alpha:", UIColor>(red, green, blue, alpha);
  }
  static UIColor colorWithHue(CGFloat hue, CGFloat saturation, CGFloat brightness, CGFloat alpha) {
    return call_class<"colorWithHue:saturation:brightness:alpha:", UIColor>(hue, saturation,
                                                                            brightness, alpha);
  }
  static UIColor colorWithCGColor(CGColorRef color) {
    return call_class<"colorWithCGColor:", UIColor>(color);
  }

  /// Fills by tiling the picture; returns nil for a nil picture. Body in UIImage.h.
  static UIColor colorWithPatternImage(UIImage image);

  UIColor initWithWhite(CGFloat white, CGFloat alpha) const {
    return call<"initWithWhite:alpha:", UIColor>(white, alpha);
  }
  UIColor initWithRed(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha) const {
    return call<"initWithRed:green:blue:alpha:", UIColor>(red, green, blue, alpha);
  }
  UIColor colorWithAlphaComponent(CGFloat alpha) const {
    return call<"colorWithAlphaComponent:", UIColor>(alpha);
  }

  /// Writes the components whose pointers are not null.
  BOOL getRed(CGFloat* red, CGFloat* green, CGFloat* blue, CGFloat* alpha) const {
    return call<"getRed:green:blue:alpha:", BOOL>(red, green, blue, alpha);
  }
  /// Returns NO and writes nothing if the colour is not a grey.
  BOOL getWhite(CGFloat* white, CGFloat* alpha) const {
    return call<"getWhite:alpha:", BOOL>(white, alpha);
  }
  BOOL getHue(CGFloat* hue, CGFloat* saturation, CGFloat* brightness, CGFloat* alpha) const {
    return call<"getHue:saturation:brightness:alpha:", BOOL>(hue, saturation, brightness, alpha);
  }
  /// Borrowed: lives as long as the colour.
  CGColorRef CGColor() const { return call<"CGColor", CGColorRef>(); }

  /// Sets the fill and stroke colour of the current context of `UIGraphics`.
  void set() const { call<"set">(); }
  void setFill() const { call<"setFill">(); }
  void setStroke() const { call<"setStroke">(); }
};
