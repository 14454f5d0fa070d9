#pragma once

#include "host/quartzcore/values/timing_curve.h"
#include "objc/class_builder.h"
#include "platform/QuartzCore/CAMediaTimingFunction.h"

namespace host::quartzcore {

class TimingFunction : public objc::Implementation<TimingFunction, CAMediaTimingFunction> {
 public:
  explicit TimingFunction(CAMediaTimingFunction owner) : Implementation(owner) {}

  TimingCurve curve;

  CAMediaTimingFunction init_with_control_points(float x1, float y1, float x2, float y2);
  void control_point(NSUInteger index, float* values) const;
};

/// Returns the curve of a timing function; a straight line for nil.
TimingCurve curve_of(CAMediaTimingFunction function);

void export_timing_function();

}  // namespace host::quartzcore
