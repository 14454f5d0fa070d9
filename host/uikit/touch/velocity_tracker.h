#pragma once

#include <deque>

#include "platform/CoreGraphics/CGGeometry.h"

namespace host::uikit {

/// Computes the velocity of a finger from its positions in the last tenth of a second. Later
/// movement counts for more; a finger that has rested for that long has no velocity.
class VelocityTracker {
 public:
  /// Times are in seconds and must not decrease.
  void add(CGPoint point, double time);
  void clear() { samples_.clear(); }
  /// Returns the velocity at `time`, in points per second.
  CGPoint velocity(double time) const;

 private:
  struct Sample {
    CGPoint point;
    double time;
  };
  std::deque<Sample> samples_;
};

}  // namespace host::uikit
