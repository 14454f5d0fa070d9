#pragma once

#include "platform/QuartzCore/CALayer.h"

/// Draws a blurred copy of everything painted behind it. What it looks like is its view's to say.
struct CABackdropLayer : objc::Bound<CABackdropLayer, "CABackdropLayer", CALayer> {
  static CABackdropLayer layer() { return call_class<"layer", CABackdropLayer>(); }
};
