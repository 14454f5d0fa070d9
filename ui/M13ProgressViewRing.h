#pragma once

#include "objc/own_class.h"
#include "platform/Foundation/NSNumberFormatter.h"
#include "platform/QuartzCore/CABasicAnimation.h"
#include "platform/QuartzCore/CADisplayLink.h"
#include "platform/QuartzCore/CAShapeLayer.h"
#include "platform/UIKit/UILabel.h"
#include "ui/M13ProgressView.h"

/// A thin ring with a thicker progress arc over it, clockwise from twelve o'clock. Always square.
struct M13ProgressViewRing
    : objc::Own<M13ProgressViewRing, "M13ProgressViewRing", M13ProgressView> {
  M13ProgressViewRing initWithFrame(CGRect frame) const {
    return call<"initWithFrame:", M13ProgressViewRing>(frame);
  }
  /// Sets the defaults and makes the layers and the label. Every initializer calls it last.
  void setup() const { call<"setup">(); }

  /// Widths in points. Once set explicitly, layout no longer changes them.
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

  /// Nil unless an animated change is running.
  CADisplayLink displayLink() const { return call<"displayLink", CADisplayLink>(); }
  float animationFromValue() const { return call<"animationFromValue", float>(); }
  float animationToValue() const { return call<"animationToValue", float>(); }
  double animationStartTime() const { return call<"animationStartTime", double>(); }

  CAShapeLayer backgroundLayer() const { return call<"backgroundLayer", CAShapeLayer>(); }
  CAShapeLayer progressLayer() const { return call<"progressLayer", CAShapeLayer>(); }
  CAShapeLayer iconLayer() const { return call<"iconLayer", CAShapeLayer>(); }
  /// The last action performed.
  NSInteger currentAction() const { return call<"currentAction", NSInteger>(); }

  // Each sets the path of one layer.
  void drawBackground() const { call<"drawBackground">(); }
  void drawIcon() const { call<"drawIcon">(); }
  void drawProgress() const { call<"drawProgress">(); }
  void drawSuccess() const { call<"drawSuccess">(); }
  void drawFailure() const { call<"drawFailure">(); }

  /// Called by the display link for each frame.
  void animateProgress(CADisplayLink link) const { call<"animateProgress:">(link); }
  /// Animations of the opacity from 0 to 1 and from 1 to 0, over the ring's animation duration.
  CABasicAnimation showAnimation() const { return call<"showAnimation", CABasicAnimation>(); }
  CABasicAnimation hideAnimation() const { return call<"hideAnimation", CABasicAnimation>(); }
};

namespace sonavue {

/// Registers the class with the runtime. The base class must already be registered.
void make_progress_view_ring();

}  // namespace sonavue
