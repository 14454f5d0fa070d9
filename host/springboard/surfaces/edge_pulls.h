#pragma once

#include <functional>

#include "host/uikit/gesture/velocity_tracker.h"
#include "objc/ref.h"
#include "platform/UIKit/UITouch.h"

namespace host::springboard {

/// A surface that a finger pulls in from an edge. Points are of the screen.
class EdgePullTarget {
 public:
  virtual ~EdgePullTarget() = default;
  virtual bool can_be_pulled() const = 0;
  virtual void pull_began(CGPoint start) = 0;
  virtual void pull_moved(CGPoint point) = 0;
  /// `velocity` is downwards, in points a second.
  virtual void pull_ended(CGPoint point, CGFloat velocity) = 0;
};

/// Watches for fingers that land on the top or the bottom edge and pull inwards. Until then their
/// touches go to whatever lies there; from then on they are the system's, and whoever had them is
/// told that they are cancelled.
class EdgePulls {
 public:
  EdgePulls(EdgePullTarget& top, EdgePullTarget& bottom) : top_(top), bottom_(bottom) {}

  /// True when the touch, which has just changed, is the system's and nobody else is to hear of it.
  /// `cancel` sends its event on, now that the touch is cancelled.
  bool take(UITouch touch, const std::function<void()>& cancel);

 private:
  void watch(UITouch touch);
  bool pulls_inwards(CGPoint point) const;
  bool move(UITouch touch, const std::function<void()>& cancel);
  void end(UITouch touch);

  EdgePullTarget& top_;
  EdgePullTarget& bottom_;
  EdgePullTarget* target_ = nullptr;
  objc::Ref<UITouch> touch_;
  CGPoint start_;
  bool taken_ = false;
  uikit::VelocityTracker velocity_;
};

}  // namespace host::springboard
