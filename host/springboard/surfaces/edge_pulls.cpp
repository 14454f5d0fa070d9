#include "host/springboard/surfaces/edge_pulls.h"

#include <cmath>
#include <utility>

#include "host/uikit/gesture/touch.h"
#include "platform/UIKit/UIScreen.h"

namespace host::springboard {
namespace {

constexpr CGFloat kEdge = 10;
constexpr CGFloat kThreshold = 8;

}  // namespace

bool EdgePulls::take(UITouch touch, const std::function<void()>& cancel) {
  if (touch_ && touch == *touch_) return move(touch, cancel);
  const bool is_busy = touch_ && taken_;
  if (!is_busy && touch.phase() == UITouchPhaseBegan) watch(touch);
  return false;
}

void EdgePulls::watch(UITouch touch) {
  const CGPoint point = objc::state_of<uikit::Touch>(touch).landing_point();
  const CGFloat height = UIScreen::mainScreen().bounds().size.height;
  EdgePullTarget* target = nullptr;
  if (point.y <= kEdge) target = &top_;
  if (point.y >= height - kEdge) target = &bottom_;
  if (!target || !target->can_be_pulled()) return;
  target_ = target;
  touch_.reset(touch);
  start_ = point;
  taken_ = false;
  velocity_.clear();
  velocity_.add(point, touch.timestamp());
}

bool EdgePulls::pulls_inwards(CGPoint point) const {
  const CGFloat way = target_ == &top_ ? point.y - start_.y : start_.y - point.y;
  return way >= kThreshold && way > std::abs(point.x - start_.x);
}

bool EdgePulls::move(UITouch touch, const std::function<void()>& cancel) {
  auto& state = objc::state_of<uikit::Touch>(touch);
  const CGPoint point = state.screen_location();
  velocity_.add(point, touch.timestamp());
  if (!state.is_down()) {
    const bool was_taken = taken_;
    end(touch);
    return was_taken;
  }
  if (taken_) {
    target_->pull_moved(point);
  } else if (pulls_inwards(point)) {
    taken_ = true;
    state.lift(UITouchPhaseCancelled, touch.timestamp());
    cancel();
    target_->pull_began(start_);
    target_->pull_moved(point);
  } else {
    return false;
  }
  return true;
}

void EdgePulls::end(UITouch touch) {
  const CGPoint point = objc::state_of<uikit::Touch>(touch).screen_location();
  touch_.reset();
  if (std::exchange(taken_, false))
    target_->pull_ended(point, velocity_.velocity(touch.timestamp()).y);
}

}  // namespace host::springboard
