#pragma once

#include "platform/QuartzCore/CALayer.h"

struct CAShapeLayer : objc::Bound<CAShapeLayer, "CAShapeLayer", CALayer> {
  static CAShapeLayer layer() { return call_class<"layer", CAShapeLayer>(); }

  CGPathRef path() const { return call<"path", CGPathRef>(); }
  void setPath(CGPathRef path) const { call<"setPath:">(path); }
  /// Opaque black by default; null fills nothing.
  CGColorRef fillColor() const { return call<"fillColor", CGColorRef>(); }
  void setFillColor(CGColorRef color) const { call<"setFillColor:">(color); }
  CGColorRef strokeColor() const { return call<"strokeColor", CGColorRef>(); }
  void setStrokeColor(CGColorRef color) const { call<"setStrokeColor:">(color); }
  CGFloat lineWidth() const { return call<"lineWidth", CGFloat>(); }
  void setLineWidth(CGFloat width) const { call<"setLineWidth:">(width); }
  CGFloat strokeStart() const { return call<"strokeStart", CGFloat>(); }
  void setStrokeStart(CGFloat start) const { call<"setStrokeStart:">(start); }
  CGFloat strokeEnd() const { return call<"strokeEnd", CGFloat>(); }
  void setStrokeEnd(CGFloat end) const { call<"setStrokeEnd:">(end); }
  /// "butt" (the default), "round", "square".
  NSString lineCap() const { return call<"lineCap", NSString>(); }
  void setLineCap(NSString cap) const { call<"setLineCap:">(cap); }
  /// "miter" (the default), "round", "bevel".
  NSString lineJoin() const { return call<"lineJoin", NSString>(); }
  void setLineJoin(NSString join) const { call<"setLineJoin:">(join); }
  /// "non-zero" (the default), "even-odd".
  NSString fillRule() const { return call<"fillRule", NSString>(); }
  void setFillRule(NSString rule) const { call<"setFillRule:">(rule); }
};
