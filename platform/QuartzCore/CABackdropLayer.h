#pragma once

#include "platform/QuartzCore/CALayer.h"

/// Draws a blurred copy of everything behind it. Its view determines the look.
struct CABackdropLayer : objc::Bound<CABackdropLayer, "CABackdropLayer", CALayer> {
  static CABackdropLayer layer() { return call_class<"layer", CABackdropLayer>(); }
};
