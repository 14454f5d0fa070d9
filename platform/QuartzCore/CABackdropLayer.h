#pragma once

#include "platform/QuartzCore/CALayer.h"

/// Draws a blurred copy of everything painted behind it, then its tints.
struct CABackdropLayer : objc::Bound<CABackdropLayer, "CABackdropLayer", CALayer> {
  static CABackdropLayer layer() { return call_class<"layer", CABackdropLayer>(); }

  /// Points; 0 does not blur.
  CGFloat blurRadius() const { return call<"blurRadius", CGFloat>(); }
  void setBlurRadius(CGFloat radius) const { call<"setBlurRadius:">(radius); }
  /// 1 keeps the colours, 0 is grey, above 1 is more colourful.
  CGFloat saturationDeltaFactor() const { return call<"saturationDeltaFactor", CGFloat>(); }
  void setSaturationDeltaFactor(CGFloat factor) const { call<"setSaturationDeltaFactor:">(factor); }
  /// Added to every colour channel after saturation, -1 to 1.
  CGFloat brightnessDelta() const { return call<"brightnessDelta", CGFloat>(); }
  void setBrightnessDelta(CGFloat delta) const { call<"setBrightnessDelta:">(delta); }
  /// Alpha of a grey laid over the blur before the colour tint, and that grey's white.
  CGFloat grayscaleTintAlpha() const { return call<"grayscaleTintAlpha", CGFloat>(); }
  void setGrayscaleTintAlpha(CGFloat alpha) const { call<"setGrayscaleTintAlpha:">(alpha); }
  CGFloat grayscaleTintLevel() const { return call<"grayscaleTintLevel", CGFloat>(); }
  void setGrayscaleTintLevel(CGFloat level) const { call<"setGrayscaleTintLevel:">(level); }
  /// Composited over the blur; null tints nothing.
  CGColorRef tintColor() const { return call<"tintColor", CGColorRef>(); }
  void setTintColor(CGColorRef color) const { call<"setTintColor:">(color); }
  /// A second tint, screened over the result so that it can only lighten; null lightens nothing.
  CGColorRef lightenTint() const { return call<"lightenTint", CGColorRef>(); }
  void setLightenTint(CGColorRef color) const { call<"setLightenTint:">(color); }
  /// Mean luminance, 0 to 1, of what was last blurred, before the tints; 0.5 before any frame.
  CGFloat backdropLuminance() const { return call<"backdropLuminance", CGFloat>(); }
};
