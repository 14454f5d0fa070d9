#include <cmath>

#include "host/runtime/on_pixel.h"
#include "host/uikit/scroll/content_touch_delay.h"
#include "host/uikit/scroll/scroll_indicators.h"
#include "host/uikit/scroll/scroll_view.h"
#include "host/uikit/view/responder.h"
#include "platform/UIKit/UIControl.h"

namespace host::uikit {
namespace {

constexpr double kMillisecondsPerSecond = 1000.0;
/// With directional lock, a drag this much steeper along one axis is locked to it.
constexpr double kLockSteepness = 1.5;

/// Returns the position of content pulled to `pulled`: beyond an edge it follows less and less, or
/// not at all.
double resisted(double pulled, OffsetRange range, double extent, Edges edges) {
  const double inside = range.clamp(pulled);
  return edges == Edges::Bounce ? inside + rubber_band(pulled - inside, extent) : inside;
}

double unresisted(double offset, OffsetRange range, double extent) {
  const double inside = range.clamp(offset);
  return inside + undo_rubber_band(offset - inside, extent);
}

}  // namespace

Edges ScrollView::edges(bool always_bounces, OffsetRange range) const {
  return bounces_ && (always_bounces || range.maximum > range.minimum) ? Edges::Bounce
                                                                       : Edges::Stop;
}

ScrollView::Axes ScrollView::draggable_axes() const {
  const OffsetRange across = geometry().horizontal();
  const OffsetRange down = geometry().vertical();
  return {across.maximum > across.minimum || (bounces_ && always_bounce_horizontal_),
          down.maximum > down.minimum || (bounces_ && always_bounce_vertical_)};
}

BOOL ScrollView::touches_should_cancel_in(UIView view) {
  return !view.isKindOfClass(UIControl::cls());
}

BOOL ScrollView::gesture_recognizer_should_begin(UIGestureRecognizer recognizer) {
  if (recognizer != pan_.get()) return super<BOOL>("gestureRecognizerShouldBegin:"_sel, recognizer);
  if (caught_) return YES;
  const Axes axes = draggable_axes();
  if (!axes.horizontal && !axes.vertical) return NO;
  const bool delivered =
      !delays_content_touches_ || RunLoop::main().now() - touch_time_ >= kContentTouchDelay;
  if (delivered && touched_ && touched_ != self) {
    if (!can_cancel_content_touches_) return NO;
    if (!self.touchesShouldCancelInContentView(touched_)) return NO;
  }
  // A drag across this view's scrolling direction belongs to another view that scrolls that way.
  if (axes.horizontal && axes.vertical) return YES;
  const CGPoint moved = pan_->translationInView(self);
  const bool is_horizontal = std::abs(moved.x) > std::abs(moved.y);
  return is_horizontal == axes.horizontal;
}

ScrollView::Caught ScrollView::finger_down(UIView touched) {
  end_wheel();
  tracking_ = YES;
  touched_ = touched;
  touch_time_ = RunLoop::main().now();
  caught_ = motion_.runs();
  stop_motion();
  return caught_ ? Caught::Moving : Caught::Still;
}

void ScrollView::finger_gone() {
  tracking_ = NO;
  caught_ = false;
  touched_ = nil;
}

void ScrollView::handle_pan(UIPanGestureRecognizer recognizer) {
  switch (recognizer.state()) {
    case UIGestureRecognizerStateBegan:
      begin_drag();
      break;
    case UIGestureRecognizerStateChanged:
      drag();
      break;
    case UIGestureRecognizerStateEnded:
      drag();
      end_drag(recognizer.velocityInView(self));
      break;
    case UIGestureRecognizerStateCancelled:
      end_drag({});
      break;
    default:
      break;
  }
}

void ScrollView::begin_drag() {
  motion_.stop();
  tracking_ = YES;
  dragging_ = YES;
  axes_ = draggable_axes();
  const CGPoint moved = pan_->translationInView(self);
  if (directional_lock_ && axes_.horizontal && axes_.vertical) {
    axes_.horizontal = std::abs(moved.x) * kLockSteepness >= std::abs(moved.y);
    axes_.vertical = std::abs(moved.y) * kLockSteepness >= std::abs(moved.x);
  }
  begin_pull();
  indicators_->appear();
  if (keyboard_dismiss_mode_ != UIScrollViewKeyboardDismissModeNone)
    first_responder().resignFirstResponder();
  listener("scrollViewWillBeginDragging:"_sel).scrollViewWillBeginDragging(self);
}

// The distance that the finger had to move before it counted as a drag is not made up for: content
// that jumped that far under the finger would feel loose.
void ScrollView::begin_pull() {
  const ScrollGeometry now = geometry();
  const CGPoint offset = self.contentOffset();
  drag_translation_ = pan_->translationInView(self);
  drag_pull_ = {unresisted(offset.x, now.horizontal(), now.view.width),
                unresisted(offset.y, now.vertical(), now.view.height)};
}

CGPoint ScrollView::pull() const {
  const CGPoint moved = pan_->translationInView(self);
  return {drag_pull_.x - (moved.x - drag_translation_.x),
          drag_pull_.y - (moved.y - drag_translation_.y)};
}

CGPoint ScrollView::dragged_offset(CGPoint pulled) const {
  const ScrollGeometry now = geometry();
  const CGPoint offset = self.contentOffset();
  const OffsetRange across = now.horizontal();
  const OffsetRange down = now.vertical();
  return {axes_.horizontal
              ? resisted(pulled.x, across, now.view.width, edges(always_bounce_horizontal_, across))
              : offset.x,
          axes_.vertical
              ? resisted(pulled.y, down, now.view.height, edges(always_bounce_vertical_, down))
              : offset.y};
}

void ScrollView::drag() {
  if (!dragging_) return;
  motion_.stop();
  self.setContentOffset(on_pixel(dragged_offset(pull())));
}

CGPoint ScrollView::velocity_of_content(CGPoint finger_velocity) const {
  // Beyond an edge the content is slower than the finger: the rubber band passes on only part of
  // the next moment's pull.
  constexpr double kMoment = 0.001;
  const CGPoint pulled = pull();
  const CGPoint now = dragged_offset(pulled);
  const CGPoint next = dragged_offset(
      {pulled.x - finger_velocity.x * kMoment, pulled.y - finger_velocity.y * kMoment});
  return {(next.x - now.x) / kMoment, (next.y - now.y) / kMoment};
}

AxisGlide ScrollView::glide_along(Axis axis, double offset, double velocity) const {
  const ScrollGeometry now = geometry();
  const bool is_horizontal = axis == Axis::Horizontal;
  const OffsetRange range = is_horizontal ? now.horizontal() : now.vertical();
  if (!paging_) {
    const bool always = is_horizontal ? always_bounce_horizontal_ : always_bounce_vertical_;
    return AxisGlide::free(offset, velocity, range, deceleration_rate_, edges(always, range));
  }
  const double page = is_horizontal ? now.view.width : now.view.height;
  const double predicted = Deceleration{offset, velocity, deceleration_rate_}.end();
  return AxisGlide::to_page(offset, velocity, page_target(offset, predicted, page, range));
}

AxisGlide ScrollView::glide_to(Axis axis, double offset, double velocity, double target) const {
  if (paging_) return AxisGlide::to_page(offset, velocity, target);
  const ScrollGeometry now = geometry();
  const OffsetRange range = axis == Axis::Horizontal ? now.horizontal() : now.vertical();
  return AxisGlide::to(offset, target, range, deceleration_rate_);
}

void ScrollView::end_drag(CGPoint finger_velocity) {
  if (!dragging_) return;
  const CGPoint offset = self.contentOffset();
  const CGPoint velocity = velocity_of_content(finger_velocity);
  release(glide_along(Axis::Horizontal, offset.x, velocity.x),
          glide_along(Axis::Vertical, offset.y, velocity.y), velocity);
}

void ScrollView::release(AxisGlide horizontal, AxisGlide vertical, CGPoint velocity) {
  const CGPoint offset = self.contentOffset();
  const CGPoint predicted{horizontal.end(), vertical.end()};
  CGPoint target = predicted;
  const unsigned settings_before = settings_;
  listener("scrollViewWillEndDragging:withVelocity:targetContentOffset:"_sel)
      .scrollViewWillEndDragging(
          self, {velocity.x / kMillisecondsPerSecond, velocity.y / kMillisecondsPerSecond},
          &target);
  if (target.x != predicted.x)
    horizontal = glide_to(Axis::Horizontal, offset.x, velocity.x, target.x);
  if (target.y != predicted.y) vertical = glide_to(Axis::Vertical, offset.y, velocity.y, target.y);
  const bool glides = horizontal.duration() > 0 || vertical.duration() > 0;

  tracking_ = NO;
  dragging_ = NO;
  listener("scrollViewDidEndDragging:willDecelerate:"_sel)
      .scrollViewDidEndDragging(self, glides ? YES : NO);
  // A delegate that has set another offset takes precedence.
  if (settings_ != settings_before) return;
  if (!glides) {
    indicators_->fade();
    return;
  }
  motion_.glide(std::move(horizontal), std::move(vertical));
  if (self.contentOffset() != offset) continue_glide();
  listener("scrollViewWillBeginDecelerating:"_sel).scrollViewWillBeginDecelerating(self);
}

// The content was moved, or its size has changed, during a glide: the glide keeps its speed and the
// page it was turning to.
void ScrollView::continue_glide() {
  const CGPoint offset = self.contentOffset();
  const CGPoint velocity = motion_.velocity();
  const CGPoint end = geometry().clamp(motion_.end());
  if (paging_) {
    motion_.glide(AxisGlide::to_page(offset.x, velocity.x, end.x),
                  AxisGlide::to_page(offset.y, velocity.y, end.y));
  } else {
    motion_.glide(glide_along(Axis::Horizontal, offset.x, velocity.x),
                  glide_along(Axis::Vertical, offset.y, velocity.y));
  }
}

}  // namespace host::uikit
