#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/Foundation/NSArray.h"

struct UIScreen : objc::Bound<UIScreen, "UIScreen", NSObject> {
  static UIScreen mainScreen() { return call_class<"mainScreen", UIScreen>(); }
  static NSArray screens() { return call_class<"screens", NSArray>(); }
  /// In points.
  CGRect bounds() const { return call<"bounds", CGRect>(); }
  /// In pixels.
  CGRect nativeBounds() const { return call<"nativeBounds", CGRect>(); }
  /// In points, without the status bar.
  CGRect applicationFrame() const { return call<"applicationFrame", CGRect>(); }
  /// Pixels per point.
  CGFloat scale() const { return call<"scale", CGFloat>(); }
};
