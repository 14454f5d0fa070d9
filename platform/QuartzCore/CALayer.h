#pragma once

#include "platform/CoreGraphics/CGTypes.h"
#include "platform/Foundation/NSArray.h"
#include "platform/QuartzCore/CAAnimation.h"
#include "platform/QuartzCore/CATransform3D.h"

// A layer's delegate may implement displayLayer:, drawLayer:inContext:, layoutSublayersOfLayer:
// and actionForLayer:forKey:.

struct CALayer : objc::Bound<CALayer, "CALayer", NSObject> {
  static CALayer layer() { return call_class<"layer", CALayer>(); }

  CGRect frame() const { return call<"frame", CGRect>(); }
  void setFrame(CGRect frame) const { call<"setFrame:">(frame); }
  CGRect bounds() const { return call<"bounds", CGRect>(); }
  void setBounds(CGRect bounds) const { call<"setBounds:">(bounds); }
  CGPoint position() const { return call<"position", CGPoint>(); }
  void setPosition(CGPoint position) const { call<"setPosition:">(position); }
  CGPoint anchorPoint() const { return call<"anchorPoint", CGPoint>(); }
  void setAnchorPoint(CGPoint anchor) const { call<"setAnchorPoint:">(anchor); }
  CGFloat zPosition() const { return call<"zPosition", CGFloat>(); }
  void setZPosition(CGFloat z) const { call<"setZPosition:">(z); }
  CATransform3D transform() const { return call<"transform", CATransform3D>(); }
  void setTransform(CATransform3D transform) const { call<"setTransform:">(transform); }
  CGAffineTransform affineTransform() const { return call<"affineTransform", CGAffineTransform>(); }
  void setAffineTransform(CGAffineTransform transform) const {
    call<"setAffineTransform:">(transform);
  }

  float opacity() const { return call<"opacity", float>(); }
  void setOpacity(float opacity) const { call<"setOpacity:">(opacity); }
  BOOL isHidden() const { return call<"isHidden", BOOL>(); }
  void setHidden(BOOL hidden) const { call<"setHidden:">(hidden); }
  BOOL isOpaque() const { return call<"isOpaque", BOOL>(); }
  void setOpaque(BOOL opaque) const { call<"setOpaque:">(opaque); }
  BOOL masksToBounds() const { return call<"masksToBounds", BOOL>(); }
  void setMasksToBounds(BOOL masks) const { call<"setMasksToBounds:">(masks); }
  BOOL shouldRasterize() const { return call<"shouldRasterize", BOOL>(); }
  void setShouldRasterize(BOOL rasterize) const { call<"setShouldRasterize:">(rasterize); }
  CGFloat cornerRadius() const { return call<"cornerRadius", CGFloat>(); }
  void setCornerRadius(CGFloat radius) const { call<"setCornerRadius:">(radius); }
  CGFloat borderWidth() const { return call<"borderWidth", CGFloat>(); }
  void setBorderWidth(CGFloat width) const { call<"setBorderWidth:">(width); }
  CGColorRef borderColor() const { return call<"borderColor", CGColorRef>(); }
  void setBorderColor(CGColorRef color) const { call<"setBorderColor:">(color); }
  CGColorRef backgroundColor() const { return call<"backgroundColor", CGColorRef>(); }
  void setBackgroundColor(CGColorRef color) const { call<"setBackgroundColor:">(color); }

  /// An image (CGImage) or nil.
  objc::Object contents() const { return call<"contents", objc::Object>(); }
  void setContents(objc::Object contents) const { call<"setContents:">(contents); }
  void setContents(CGImageRef image) const {
    setContents(objc::Object(reinterpret_cast<objc::Id>(image)));
  }
  /// "resize" (the default), "resizeAspect", "resizeAspectFill", "center", "top", "bottom", "left",
  /// "right", "topLeft", "topRight", "bottomLeft", "bottomRight".
  NSString contentsGravity() const { return call<"contentsGravity", NSString>(); }
  void setContentsGravity(NSString gravity) const { call<"setContentsGravity:">(gravity); }
  CGFloat contentsScale() const { return call<"contentsScale", CGFloat>(); }
  void setContentsScale(CGFloat scale) const { call<"setContentsScale:">(scale); }

  NSString name() const { return call<"name", NSString>(); }
  void setName(NSString name) const { call<"setName:">(name); }
  CALayer mask() const { return call<"mask", CALayer>(); }
  void setMask(CALayer mask) const { call<"setMask:">(mask); }
  objc::Object delegate() const { return call<"delegate", objc::Object>(); }
  void setDelegate(objc::Object delegate) const { call<"setDelegate:">(delegate); }

  CALayer superlayer() const { return call<"superlayer", CALayer>(); }
  NSArray sublayers() const { return call<"sublayers", NSArray>(); }
  void setSublayers(NSArray layers) const { call<"setSublayers:">(layers); }
  void addSublayer(CALayer layer) const { call<"addSublayer:">(layer); }
  void insertSublayerAtIndex(CALayer layer, unsigned index) const {
    call<"insertSublayer:atIndex:">(layer, index);
  }
  void insertSublayerAbove(CALayer layer, CALayer sibling) const {
    call<"insertSublayer:above:">(layer, sibling);
  }
  void insertSublayerBelow(CALayer layer, CALayer sibling) const {
    call<"insertSublayer:below:">(layer, sibling);
  }
  void removeFromSuperlayer() const { call<"removeFromSuperlayer">(); }

  BOOL needsDisplay() const { return call<"needsDisplay", BOOL>(); }
  void setNeedsDisplay() const { call<"setNeedsDisplay">(); }
  void displayIfNeeded() const { call<"displayIfNeeded">(); }
  void display() const { call<"display">(); }
  void drawInContext(CGContextRef context) const { call<"drawInContext:">(context); }
  BOOL needsDisplayOnBoundsChange() const { return call<"needsDisplayOnBoundsChange", BOOL>(); }
  void setNeedsDisplayOnBoundsChange(BOOL needs) const {
    call<"setNeedsDisplayOnBoundsChange:">(needs);
  }
  BOOL needsLayout() const { return call<"needsLayout", BOOL>(); }
  void setNeedsLayout() const { call<"setNeedsLayout">(); }
  void layoutIfNeeded() const { call<"layoutIfNeeded">(); }
  void layoutSublayers() const { call<"layoutSublayers">(); }

  objc::Object actionForKey(NSString key) const { return call<"actionForKey:", objc::Object>(key); }
  void addAnimation(CAAnimation animation, NSString key) const {
    call<"addAnimation:forKey:">(animation, key);
  }
  void removeAnimationForKey(NSString key) const { call<"removeAnimationForKey:">(key); }
  void removeAllAnimations() const { call<"removeAllAnimations">(); }
  CAAnimation animationForKey(NSString key) const {
    return call<"animationForKey:", CAAnimation>(key);
  }
  NSArray animationKeys() const { return call<"animationKeys", NSArray>(); }
  /// A copy with the values that are on the screen now. It has no sublayers.
  CALayer presentationLayer() const { return call<"presentationLayer", CALayer>(); }

  CGPoint convertPointFromLayer(CGPoint point, CALayer layer) const {
    return call<"convertPoint:fromLayer:", CGPoint>(point, layer);
  }
  CGPoint convertPointToLayer(CGPoint point, CALayer layer) const {
    return call<"convertPoint:toLayer:", CGPoint>(point, layer);
  }
  CGRect convertRectFromLayer(CGRect rect, CALayer layer) const {
    return call<"convertRect:fromLayer:", CGRect>(rect, layer);
  }
  CGRect convertRectToLayer(CGRect rect, CALayer layer) const {
    return call<"convertRect:toLayer:", CGRect>(rect, layer);
  }
  BOOL containsPoint(CGPoint point) const { return call<"containsPoint:", BOOL>(point); }
  /// `point` is in the superlayer's coordinates.
  CALayer hitTest(CGPoint point) const { return call<"hitTest:", CALayer>(point); }

  void setValueForKeyPath(objc::Object value, NSString path) const {
    call<"setValue:forKeyPath:">(value, path);
  }
  objc::Object valueForKeyPath(NSString path) const {
    return call<"valueForKeyPath:", objc::Object>(path);
  }
};
