#pragma once

#include "platform/CoreGraphics/CGContext.h"
#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/Foundation/NSData.h"
#include "platform/UIKit/UIColor.h"

enum UIImageOrientation : NSInteger {
  UIImageOrientationUp = 0,
  UIImageOrientationDown = 1,
  UIImageOrientationLeft = 2,
  UIImageOrientationRight = 3,
  UIImageOrientationUpMirrored = 4,
  UIImageOrientationDownMirrored = 5,
  UIImageOrientationLeftMirrored = 6,
  UIImageOrientationRightMirrored = 7,
};

enum UIImageRenderingMode : NSInteger {
  UIImageRenderingModeAutomatic = 0,
  UIImageRenderingModeAlwaysOriginal = 1,
  UIImageRenderingModeAlwaysTemplate = 2,
};

struct UIImage : objc::Bound<UIImage, "UIImage", NSObject> {
  /// A picture from the main bundle, for the screen's scale; nil if it does not exist.
  static UIImage imageNamed(NSString name) { return call_class<"imageNamed:", UIImage>(name); }
  /// Prefers the file next to `path` for the screen's scale. Returns nil if the file is missing.
  static UIImage imageWithContentsOfFile(NSString path) {
    return call_class<"imageWithContentsOfFile:", UIImage>(path);
  }
  static UIImage imageWithData(NSData data) { return call_class<"imageWithData:", UIImage>(data); }
  static UIImage imageWithData(NSData data, CGFloat scale) {
    return call_class<"imageWithData:scale:", UIImage>(data, scale);
  }
  static UIImage imageWithCGImage(CGImageRef image) {
    return call_class<"imageWithCGImage:", UIImage>(image);
  }
  static UIImage imageWithCGImage(CGImageRef image, CGFloat scale, UIImageOrientation orientation) {
    return call_class<"imageWithCGImage:scale:orientation:", UIImage>(image, scale, orientation);
  }
  UIImage initWithContentsOfFile(NSString path) const {
    return call<"initWithContentsOfFile:", UIImage>(path);
  }
  UIImage initWithData(NSData data) const { return call<"initWithData:", UIImage>(data); }
  UIImage initWithCGImage(CGImageRef image) const {
    return call<"initWithCGImage:", UIImage>(image);
  }
  UIImage initWithCGImage(CGImageRef image, CGFloat scale, UIImageOrientation orientation) const {
    return call<"initWithCGImage:scale:orientation:", UIImage>(image, scale, orientation);
  }

  /// In points.
  CGSize size() const { return call<"size", CGSize>(); }
  /// Pixels per point.
  CGFloat scale() const { return call<"scale", CGFloat>(); }
  /// Borrowed: lives as long as the image. Null if the picture cannot be decoded.
  CGImageRef CGImage() const { return call<"CGImage", CGImageRef>(); }
  UIImageOrientation imageOrientation() const {
    return call<"imageOrientation", UIImageOrientation>();
  }
  UIImageRenderingMode renderingMode() const {
    return call<"renderingMode", UIImageRenderingMode>();
  }
  UIImage imageWithRenderingMode(UIImageRenderingMode mode) const {
    return call<"imageWithRenderingMode:", UIImage>(mode);
  }

  void drawAtPoint(CGPoint point) const { call<"drawAtPoint:">(point); }
  void drawInRect(CGRect rect) const { call<"drawInRect:">(rect); }
  void drawInRect(CGRect rect, CGBlendMode mode, CGFloat alpha) const {
    call<"drawInRect:blendMode:alpha:">(rect, mode, alpha);
  }
};

inline UIColor UIColor::colorWithPatternImage(UIImage image) {
  return call_class<"colorWithPatternImage:", UIColor>(image);
}
