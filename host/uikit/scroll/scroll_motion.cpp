#include "host/uikit/scroll/scroll_motion.h"

#include <algorithm>

#include "host/runtime/on_pixel.h"
#include "objc/ref.h"

namespace host::uikit {
namespace {

constexpr double kSetAnimationDuration = 0.3;

/// Eases in and out.
double eased(double share) {
  return share * share * (3 - 2 * share);
}

}  // namespace

ScrollMotion::ScrollMotion(objc::Object owner, std::function<void(CGPoint)> move,
                           std::function<void(Kind)> finish)
    : owner_(owner), move_(std::move(move)), finish_(std::move(finish)) {}

void ScrollMotion::start(Kind kind, AxisGlide horizontal, AxisGlide vertical) {
  horizontal_ = std::move(horizontal);
  vertical_ = std::move(vertical);
  start(kind, std::max(horizontal_.duration(), vertical_.duration()));
}

void ScrollMotion::animate(CGPoint from, CGPoint to) {
  from_ = from;
  to_ = to;
  start(Kind::Animation, kSetAnimationDuration);
}

void ScrollMotion::start(Kind kind, double duration) {
  stop();
  kind_ = kind;
  started_ = RunLoop::main().now();
  duration_ = duration;
  observer_ = RunLoop::main().add_frame_observer([this](double now) { frame(now); });
}

void ScrollMotion::stop() {
  if (kind_ == Kind::None) return;
  kind_ = Kind::None;
  if (RunLoop::has_main()) RunLoop::main().remove_frame_observer(observer_);
}

CGPoint ScrollMotion::velocity() const {
  if (kind_ != Kind::Glide) return {};
  const double time = RunLoop::main().now() - started_;
  return {horizontal_.velocity(time), vertical_.velocity(time)};
}

CGPoint ScrollMotion::end() const {
  if (kind_ == Kind::Animation) return to_;
  return {horizontal_.end(), vertical_.end()};
}

CGPoint ScrollMotion::offset_at(double time) const {
  if (kind_ != Kind::Animation)
    return on_pixel(CGPoint{horizontal_.position(time), vertical_.position(time)});
  const double share = eased(std::clamp(time / duration_, 0.0, 1.0));
  return on_pixel(
      CGPoint{from_.x + (to_.x - from_.x) * share, from_.y + (to_.y - from_.y) * share});
}

void ScrollMotion::frame(double now) {
  const auto kept = objc::Ref<objc::Object>::retain(owner_);
  const double time = now - started_;
  if (time < duration_) {
    move_(offset_at(time));
    return;
  }
  const Kind ended = kind_;
  move_(end());
  // An observer of the last offset may have started another motion.
  if (kind_ != ended || started_ + duration_ > now) return;
  stop();
  finish_(ended);
}

}  // namespace host::uikit
