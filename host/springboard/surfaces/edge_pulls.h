#pragma once

#include <optional>

#include "host/uikit/touch/system_gestures.h"
#include "host/uikit/touch/velocity_tracker.h"

namespace host::springboard {

/// A surface that a finger pulls in from an edge. Points are in screen coordinates.
class EdgePullTarget {
 public:
  virtual ~EdgePullTarget() = default;
  virtual bool can_be_pulled() const = 0;
  virtual void pull_began(CGPoint start) = 0;
  virtual void pull_moved(CGPoint point) = 0;
  /// `velocity` is downwards, in points per second.
  virtual void pull_ended(CGPoint point, CGFloat velocity) = 0;
  /// The touch was cancelled.
  virtual void pull_cancelled() = 0;
};

/// Watches for fingers that land on the top or the bottom edge and pull inwards. Until a finger
/// does so, its touches go to the view below; from then on they belong to the system. A finger that
/// first moves sideways stays with its view, wherever it goes afterwards.
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
