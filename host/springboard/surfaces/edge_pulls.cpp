#include "host/springboard/surfaces/edge_pulls.h"

#include <cmath>
#include <utility>

#include "platform/UIKit/UIScreen.h"

namespace host::springboard {
namespace {

constexpr CGFloat kPullingEdge = 10;
constexpr CGFloat kThreshold = 8;

}  // namespace

EdgePulls::EdgePulls(EdgePullTarget& top, EdgePullTarget& bottom) : top_(top), bottom_(bottom) {
  uikit::add_system_gestures(this);
}

EdgePulls::~EdgePulls() {
  uikit::remove_system_gestures(this);
}

EdgePulls::Claim EdgePulls::touch(int finger, UITouchPhase phase, CGPoint screen_point,
                                  double timestamp) {
  if (phase == UITouchPhaseBegan) {
    if (!taken_) watch(finger, screen_point, timestamp);
    return Claim::Windows;
  }
  if (finger_ != finger) return Claim::Windows;
  velocity_.add(screen_point, timestamp);
  const bool is_over = phase == UITouchPhaseEnded || phase == UITouchPhaseCancelled;
  if (!is_over) follow(screen_point);
  const Claim claim = taken_ ? Claim::System : Claim::Windows;
  if (is_over) end(phase, screen_point, timestamp);
  return claim;
}

void EdgePulls::watch(int finger, CGPoint point, double timestamp) {
  const CGFloat height = UIScreen::mainScreen().bounds().size.height;
  EdgePullTarget* target = nullptr;
  if (point.y <= kPullingEdge) target = &top_;
  if (point.y >= height - kPullingEdge) target = &bottom_;
  if (!target || !target->can_be_pulled()) return;
  target_ = target;
  finger_ = finger;
  start_ = point;
  velocity_.clear();
  velocity_.add(point, timestamp);
}

void EdgePulls::follow(CGPoint point) {
  const CGFloat inwards = target_ == &top_ ? point.y - start_.y : start_.y - point.y;
  const CGFloat sideways = std::abs(point.x - start_.x);
  if (taken_) {
    target_->pull_moved(point);
  } else if (sideways >= kThreshold && sideways >= inwards) {
    finger_.reset();
  } else if (inwards >= kThreshold) {
    taken_ = true;
    target_->pull_began(start_);
    target_->pull_moved(point);
  }
}

void EdgePulls::end(UITouchPhase phase, CGPoint point, double timestamp) {
  finger_.reset();
  if (!std::exchange(taken_, false)) return;
  if (phase == UITouchPhaseCancelled) {
    target_->pull_cancelled();
  } else {
    target_->pull_ended(point, velocity_.velocity(timestamp).y);
  }
}

}  // namespace host::springboard
