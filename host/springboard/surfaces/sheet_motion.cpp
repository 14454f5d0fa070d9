#include "host/springboard/surfaces/sheet_motion.h"

#include <algorithm>
#include <cmath>

namespace host::springboard {
namespace {

constexpr double kSheetTravel = 0.5;
constexpr CGFloat kSheetDamping = 0.85;
constexpr CGFloat kFling = 250;
// The share of the finger's movement that the panel follows beyond its open place.
constexpr CGFloat kSheetGive = 0.25;

}  // namespace

SheetMotion::SheetMotion(UIView panel, Places places, Rested rested)
    : panel_(objc::Ref<UIView>::retain(panel)), places_(places), rested_(std::move(rested)) {}

void SheetMotion::set_top(CGFloat top) const {
  CGRect frame = panel_->frame();
  frame.origin.y = top;
  panel_->setFrame(frame);
}

void SheetMotion::grab() {
  ++travels_;
  const CALayer seen = panel_->layer().presentationLayer();
  if (seen) set_top(CGRect(seen.frame()).min_y());
  panel_->layer().removeAllAnimations();
  grabbed_at_ = top();
}

void SheetMotion::follow(CGFloat way) {
  CGFloat top = grabbed_at_ + way;
  const bool opens_upwards = places_.open < places_.closed;
  const CGFloat beyond = opens_upwards ? places_.open - top : top - places_.open;
  if (beyond > 0) top = places_.open + (opens_upwards ? -beyond : beyond) * kSheetGive;
  set_top(opens_upwards ? std::min(top, places_.closed) : std::max(top, places_.closed));
}

Rest SheetMotion::rest_after(CGFloat velocity) const {
  const bool opens_upwards = places_.open < places_.closed;
  if (std::abs(velocity) > kFling)
    return (velocity < 0) == opens_upwards ? Rest::kOpen : Rest::kClosed;
  const CGFloat half = (places_.open + places_.closed) / 2;
  return (top() < half) == opens_upwards ? Rest::kOpen : Rest::kClosed;
}

void SheetMotion::go_to(Rest rest, CGFloat velocity) {
  const int travel = ++travels_;
  const CGFloat way = place_of(rest) - top();
  const CGFloat pace = way == 0 ? 0 : velocity / way;
  const auto rested = objc::block([this, rest, travel, life = std::weak_ptr<void>(life_)](BOOL) {
    if (!life.expired() && travel == travels_) notify(rest);
  });
  UIView::animateWithDuration(kSheetTravel, 0, rest == Rest::kOpen ? kSheetDamping : 1,
                              std::max<CGFloat>(pace, 0), UIViewAnimationOptionAllowUserInteraction,
                              objc::block([this, rest] { set_top(place_of(rest)); }), rested);
}

void SheetMotion::put(Rest rest) {
  ++travels_;
  panel_->layer().removeAllAnimations();
  set_top(place_of(rest));
  notify(rest);
}

void SheetMotion::notify(Rest rest) const {
  // The callback may destroy this object.
  const Rested rested = rested_;
  rested(rest);
}

}  // namespace host::springboard
