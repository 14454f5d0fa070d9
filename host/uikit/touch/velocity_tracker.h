#pragma once

#include <deque>

#include "platform/CoreGraphics/CGGeometry.h"

namespace host::uikit {

/// How fast a finger is, from where it was in the last tenth of a second: later movement counts
/// for more, and a finger that has rested for that long stands still.
class VelocityTracker {
 public:
  /// Times in seconds, in order.
  void add(CGPoint point, double time);
  void clear() { samples_.clear(); }
  /// Points a second, as of `time`.
  CGPoint velocity(double time) const;

 private:
  struct Sample {
    CGPoint point;
    double time;
  };
  std::deque<Sample> samples_;
};

}  // namespace host::uikit
