#pragma once

#include "platform/QuartzCore/CALayer.h"

struct CAGradientLayer : objc::Bound<CAGradientLayer, "CAGradientLayer", CALayer> {
  static CAGradientLayer layer() { return call_class<"layer", CAGradientLayer>(); }

  /// CGColors.
  NSArray colors() const { return call<"colors", NSArray>(); }
  void setColors(NSArray colors) const { call<"setColors:">(colors); }
  /// NSNumbers from 0 to 1 along the axis, one for each colour; nil spreads the colours evenly.
  NSArray locations() const { return call<"locations", NSArray>(); }
  void setLocations(NSArray locations) const { call<"setLocations:">(locations); }
  /// Ends of the axis, as fractions of the layer's bounds; (0.5, 0) and (0.5, 1) by default.
  CGPoint startPoint() const { return call<"startPoint", CGPoint>(); }
  void setStartPoint(CGPoint point) const { call<"setStartPoint:">(point); }
  CGPoint endPoint() const { return call<"endPoint", CGPoint>(); }
  void setEndPoint(CGPoint point) const { call<"setEndPoint:">(point); }
};
