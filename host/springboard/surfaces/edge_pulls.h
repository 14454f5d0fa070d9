#pragma once

#include <optional>

#include "host/uikit/touch/system_gestures.h"
#include "host/uikit/touch/velocity_tracker.h"

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
  /// The finger was taken away.
  virtual void pull_cancelled() = 0;
};

/// Watches for fingers that land on the top or the bottom edge and pull inwards. Until then they go
/// to whatever lies there; from then on they are the system's. A finger that has gone sideways
/// stays with what it is on, wherever it goes afterwards.
class EdgePulls final : public uikit::SystemGestures {
 public:
  EdgePulls(EdgePullTarget& top, EdgePullTarget& bottom);
  ~EdgePulls() override;
  EdgePulls(const EdgePulls&) = delete;
  EdgePulls& operator=(const EdgePulls&) = delete;

  Claim touch(int finger, UITouchPhase phase, CGPoint screen_point, double timestamp) override;

 private:
  void watch(int finger, CGPoint point, double timestamp);
  void follow(CGPoint point);
  void end(UITouchPhase phase, CGPoint point, double timestamp);

  EdgePullTarget& top_;
  EdgePullTarget& bottom_;
  EdgePullTarget* target_ = nullptr;
  std::optional<int> finger_;
  CGPoint start_;
  bool taken_ = false;
  uikit::VelocityTracker velocity_;
};

}  // namespace host::springboard
