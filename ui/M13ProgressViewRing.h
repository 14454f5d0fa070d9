#pragma once

#include "platform/Foundation/NSNumberFormatter.h"
#include "platform/QuartzCore/CADisplayLink.h"
#include "platform/QuartzCore/CAShapeLayer.h"
#include "platform/UIKit/UILabel.h"
#include "ui/M13ProgressView.h"

/// A thin ring with a thicker arc of progress over it, clockwise from twelve o'clock, always as
/// high as it is wide.
struct M13ProgressViewRing
    : objc::Bound<M13ProgressViewRing, "M13ProgressViewRing", M13ProgressView> {
  M13ProgressViewRing initWithFrame(CGRect frame) const {
    return call<"initWithFrame:", M13ProgressViewRing>(frame);
  }

  /// Widths in points; once set from outside, layout leaves them alone.
  CGFloat backgroundRingWidth() const { return call<"backgroundRingWidth", CGFloat>(); }
  void setBackgroundRingWidth(CGFloat width) const { call<"setBackgroundRingWidth:">(width); }
  CGFloat progressRingWidth() const { return call<"progressRingWidth", CGFloat>(); }
  void setProgressRingWidth(CGFloat width) const { call<"setProgressRingWidth:">(width); }
  BOOL backgroundRingWidthOverriden() const { return call<"backgroundRingWidthOverriden", BOOL>(); }
  BOOL progressRingWidthOverriden() const { return call<"progressRingWidthOverriden", BOOL>(); }

  BOOL showPercentage() const { return call<"showPercentage", BOOL>(); }
  void setShowPercentage(BOOL shows) const { call<"setShowPercentage:">(shows); }
  NSNumberFormatter percentageFormatter() const {
    return call<"percentageFormatter", NSNumberFormatter>();
  }
  UILabel percentageLabel() const { return call<"percentageLabel", UILabel>(); }

  /// Nil unless an animated change is under way.
  CADisplayLink displayLink() const { return call<"displayLink", CADisplayLink>(); }
  float animationFromValue() const { return call<"animationFromValue", float>(); }
  float animationToValue() const { return call<"animationToValue", float>(); }
  double animationStartTime() const { return call<"animationStartTime", double>(); }

  CAShapeLayer backgroundLayer() const { return call<"backgroundLayer", CAShapeLayer>(); }
  CAShapeLayer progressLayer() const { return call<"progressLayer", CAShapeLayer>(); }
  CAShapeLayer iconLayer() const { return call<"iconLayer", CAShapeLayer>(); }
  NSInteger currentAction() const { return call<"currentAction", NSInteger>(); }
};

namespace sonavue {

/// Registers the class with the runtime; its base class must be there.
void make_progress_view_ring();

}  // namespace sonavue
