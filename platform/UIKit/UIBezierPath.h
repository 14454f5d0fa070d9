#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/CoreGraphics/CGPath.h"
#include "platform/Foundation/NSObject.h"

struct UIBezierPath : objc::Bound<UIBezierPath, "UIBezierPath", NSObject> {
  static UIBezierPath bezierPath() { return call_class<"bezierPath", UIBezierPath>(); }
  static UIBezierPath bezierPathWithRect(CGRect rect) {
    return call_class<"bezierPathWithRect:", UIBezierPath>(rect);
  }
  static UIBezierPath bezierPathWithOvalInRect(CGRect rect) {
    return call_class<"bezierPathWithOvalInRect:", UIBezierPath>(rect);
  }
  static UIBezierPath bezierPathWithRoundedRect(CGRect rect, CGFloat radius) {
    return call_class<"bezierPathWithRoundedRect:cornerRadius:", UIBezierPath>(rect, radius);
  }
  /// Angles are in radians; 0 points right, and they grow clockwise on the screen.
  static UIBezierPath bezierPathWithArcCenter(CGPoint center, CGFloat radius, CGFloat start,
                                              CGFloat end, BOOL clockwise) {
    return call_class<"bezierPathWithArcCenter:radius:startAngle:endAngle:clockwise:",
                      UIBezierPath>(center, radius, start, end, clockwise);
  }
  static UIBezierPath bezierPathWithCGPath(CGPathRef path) {
    return call_class<"bezierPathWithCGPath:", UIBezierPath>(path);
  }

  void moveToPoint(CGPoint point) const { call<"moveToPoint:">(point); }
  void addLineToPoint(CGPoint point) const { call<"addLineToPoint:">(point); }
  void addCurveToPoint(CGPoint end, CGPoint control1, CGPoint control2) const {
    call<"addCurveToPoint:controlPoint1:controlPoint2:">(end, control1, control2);
  }
  void addQuadCurveToPoint(CGPoint end, CGPoint control) const {
    call<"addQuadCurveToPoint:controlPoint:">(end, control);
  }
  void addArcWithCenter(CGPoint center, CGFloat radius, CGFloat start, CGFloat end,
                        BOOL clockwise) const {
    call<"addArcWithCenter:radius:startAngle:endAngle:clockwise:">(center, radius, start, end,
                                                                   clockwise);
  }
  void appendPath(UIBezierPath path) const { call<"appendPath:">(path); }
  void closePath() const { call<"closePath">(); }
  void removeAllPoints() const { call<"removeAllPoints">(); }
  void applyTransform(CGAffineTransform transform) const { call<"applyTransform:">(transform); }

  BOOL isEmpty() const { return call<"isEmpty", BOOL>(); }
  CGRect bounds() const { return call<"bounds", CGRect>(); }
  CGPoint currentPoint() const { return call<"currentPoint", CGPoint>(); }
  BOOL containsPoint(CGPoint point) const { return call<"containsPoint:", BOOL>(point); }
  /// Borrowed: valid until the path changes.
  CGPathRef CGPath() const { return call<"CGPath", CGPathRef>(); }
  void setCGPath(CGPathRef path) const { call<"setCGPath:">(path); }

  CGFloat lineWidth() const { return call<"lineWidth", CGFloat>(); }
  void setLineWidth(CGFloat width) const { call<"setLineWidth:">(width); }
  CGLineCap lineCapStyle() const { return call<"lineCapStyle", CGLineCap>(); }
  void setLineCapStyle(CGLineCap cap) const { call<"setLineCapStyle:">(cap); }
  CGLineJoin lineJoinStyle() const { return call<"lineJoinStyle", CGLineJoin>(); }
  void setLineJoinStyle(CGLineJoin join) const { call<"setLineJoinStyle:">(join); }
  BOOL usesEvenOddFillRule() const { return call<"usesEvenOddFillRule", BOOL>(); }
  void setUsesEvenOddFillRule(BOOL uses) const { call<"setUsesEvenOddFillRule:">(uses); }

  /// Both use the fill or stroke colour of the current context.
  void fill() const { call<"fill">(); }
  void stroke() const { call<"stroke">(); }
  /// Clips all later drawing in the current context to the path.
  void addClip() const { call<"addClip">(); }
};
