#include <cmath>

#include "host/runtime/on_pixel.h"
#include "host/uikit/scroll/scroll_indicators.h"
#include "host/uikit/scroll/scroll_view.h"

namespace host::uikit {
namespace {

// A run is over when the content has rested this long, in seconds.
constexpr double kPause = 0.15;
// A notch is over within a quarter of a second, and half of it within two frames.
constexpr double kNotchRate = 0.98;
// The share of a page that a touchpad has to move for the page to turn.
constexpr double kTurningShare = 0.12;
// Pages per second: reaches any page that is less than one away.
constexpr double kTurningSpeed = 2;

bool can_move(double at, double by, OffsetRange range) {
  return by < 0 ? at > range.minimum : by > 0 && at < range.maximum;
}

double moved(double at, double by, OffsetRange range) {
  return by == 0 ? at : range.clamp(at + by);
}

double next_page(double at, double by, double length, OffsetRange range) {
  if (by == 0 || length <= 0) return at;
  return range.clamp((std::round(at / length) + (by > 0 ? 1 : -1)) * length);
}

/// The offsets on the page where a run began, and on its neighbours.
OffsetRange one_page_around(double began, double length, OffsetRange range) {
  return {range.clamp(next_page(began, -1, length, range)),
          range.clamp(next_page(began, 1, length, range))};
}

/// The velocity with which a touchpad leaves content between two pages.
double turning_velocity(double began, double now, double length) {
  const double travel = now - began;
  if (std::abs(travel) < length * kTurningShare) return 0;
  const bool is_between = std::abs(now - std::round(now / length) * length) > 1;
  return is_between ? std::copysign(length * kTurningSpeed, travel) : 0;
}

}  // namespace

CGPoint ScrollView::wheel_position() const {
  const bool has_target = motion_.kind() == ScrollMotion::Kind::Wheel ||
                          (paging_ && motion_.kind() == ScrollMotion::Kind::Glide);
  if (has_target) return motion_.end();
  const CGPoint offset = self.contentOffset();
  return wheel_ ? CGPoint{offset.x + wheel_->rest.x, offset.y + wheel_->rest.y} : offset;
}

bool ScrollView::can_turn(CGPoint by) const {
  if (!scroll_enabled_) return false;
  const CGPoint at = wheel_position();
  const ScrollGeometry now = geometry();
  return can_move(at.x, by.x, now.horizontal()) || can_move(at.y, by.y, now.vertical());
}

CGPoint ScrollView::wheel_target(CGPoint by, WheelKind kind) const {
  const double unit = kind == WheelKind::Notched ? kPointsPerNotch : 1;
  const ScrollGeometry now = geometry();
  OffsetRange across = now.horizontal();
  OffsetRange down = now.vertical();
  if (paging_) {
    across = one_page_around(wheel_->began.x, now.view.width, across);
    down = one_page_around(wheel_->began.y, now.view.height, down);
  }
  const CGPoint from = wheel_position();
  return {moved(from.x, by.x * unit, across), moved(from.y, by.y * unit, down)};
}

void ScrollView::turn(CGPoint by, WheelKind kind) {
  // A finger takes precedence.
  if (tracking_ || (dragging_ && !wheel_)) return;
  if (paging_ && kind == WheelKind::Notched) return turn_page(by);
  begin_wheel();
  const CGPoint target = wheel_target(by, kind);
  const CGPoint offset = self.contentOffset();
  const CGPoint shown = on_pixel(target);
  wheel_->rest = {target.x - shown.x, target.y - shown.y};
  if (kind == WheelKind::Precise) {
    motion_.stop();
    wheel_pause_.start(kPause, [this] { end_wheel(); });
    self.setContentOffset(shown);
    return;
  }
  const ScrollGeometry now = geometry();
  auto across = AxisGlide::to(offset.x, shown.x, now.horizontal(), kNotchRate);
  auto down = AxisGlide::to(offset.y, shown.y, now.vertical(), kNotchRate);
  wheel_pause_.start(std::max(across.duration(), down.duration()) + kPause,
                     [this] { end_wheel(); });
  motion_.turn(std::move(across), std::move(down));
}

void ScrollView::turn_page(CGPoint by) {
  const CGPoint from = wheel_position();
  begin_wheel();
  wheel_pause_.stop();
  wheel_.reset();
  const ScrollGeometry now = geometry();
  const CGPoint offset = self.contentOffset();
  const CGPoint page{next_page(from.x, by.x, now.view.width, now.horizontal()),
                     next_page(from.y, by.y, now.view.height, now.vertical())};
  release(AxisGlide::to_page(offset.x, 0, page.x), AxisGlide::to_page(offset.y, 0, page.y), {});
}

// Unlike a finger, the wheel leaves the keyboard where it is: the text is still being typed.
void ScrollView::begin_wheel() {
  if (wheel_) return;
  stop_motion();
  wheel_.emplace(WheelRun{self.contentOffset(), {}});
  dragging_ = YES;
  indicators_->appear();
  listener("scrollViewWillBeginDragging:"_sel).scrollViewWillBeginDragging(self);
}

void ScrollView::end_wheel() {
  if (!wheel_) return;
  const CGPoint began = wheel_->began;
  wheel_pause_.stop();
  wheel_.reset();
  motion_.stop();
  const CGPoint offset = self.contentOffset();
  const CGSize page = self.bounds().size;
  CGPoint velocity;
  if (paging_) {
    velocity = {turning_velocity(began.x, offset.x, page.width),
                turning_velocity(began.y, offset.y, page.height)};
  }
  release(glide_along(Axis::Horizontal, offset.x, velocity.x),
          glide_along(Axis::Vertical, offset.y, velocity.y), velocity);
}

}  // namespace host::uikit
