#include "host/uikit/scroll/scroll_view.h"

#include "host/uikit/scroll/content_touch_delay.h"
#include "host/uikit/scroll/scroll_indicators.h"
#include "host/uikit/scroll/scroll_pan.h"

namespace host::uikit {

ScrollView::ScrollView(UIScrollView owner)
    : Implementation(owner),
      motion_(
          owner,
          [this](CGPoint offset) {
            moving_by_motion_ = true;
            self.setContentOffset(offset);
            moving_by_motion_ = false;
          },
          [this](ScrollMotion::Kind kind) { motion_finished(kind); }) {}

ScrollView::~ScrollView() = default;

UIView ScrollView::init_with_frame(CGRect frame) {
  if (!super<UIView>("initWithFrame:"_sel, frame)) return nil;
  self.setClipsToBounds(YES);
  indicators_ = std::make_unique<ScrollIndicators>(self);
  pan_ = make_scroll_pan(self);
  touch_delay_ = make_content_touch_delay(self);
  self.addGestureRecognizer(touch_delay_.get());
  self.addGestureRecognizer(pan_.get());
  return self;
}

void ScrollView::layout_subviews() {
  super("layoutSubviews"_sel);
  update_indicators();
}

ScrollGeometry ScrollView::geometry() const {
  return {self.bounds().size, content_size_, content_inset_};
}

UIScrollViewDelegate ScrollView::listener(objc::Sel selector) const {
  const auto delegate = objc::cast<UIScrollViewDelegate>(delegate_);
  return delegate && delegate.respondsToSelector(selector) ? delegate : nil;
}

void ScrollView::set_content_offset(CGPoint offset) {
  const CGRect bounds = self.bounds();
  if (bounds.origin != offset) self.setBounds({offset, bounds.size});
}

void ScrollView::set_content_offset_animated(CGPoint offset, BOOL animated) {
  ++settings_;
  stop_motion();
  if (!animated) {
    self.setContentOffset(offset);
    if (dragging_) begin_pull();
    return;
  }
  if (offset == self.contentOffset()) return;
  indicators_->appear();
  motion_.animate(self.contentOffset(), offset);
}

void ScrollView::scroll_rect_to_visible(CGRect rect, BOOL animated) {
  const CGPoint offset = self.contentOffset();
  const CGSize view = self.bounds().size;
  const auto nearest = [](double shown, double extent, double begin, double end) {
    if (begin < shown || end - begin > extent) return begin;
    return end > shown + extent ? end - extent : shown;
  };
  const CGPoint wanted{nearest(offset.x, view.width, rect.min_x(), rect.max_x()),
                       nearest(offset.y, view.height, rect.min_y(), rect.max_y())};
  if (wanted != offset) self.setContentOffset(geometry().clamp(wanted), animated);
}

void ScrollView::set_bounds(CGRect bounds) {
  const CGRect before = self.bounds();
  super("setBounds:"_sel, bounds);
  if (bounds.size != before.size) size_changed();
  if (bounds.origin != before.origin) offset_changed();
}

void ScrollView::set_frame(CGRect frame) {
  const CGSize before = self.bounds().size;
  super("setFrame:"_sel, frame);
  if (self.bounds().size != before) size_changed();
}

void ScrollView::set_content_size(CGSize size) {
  if (size == content_size_) return;
  const CGPoint offset = self.contentOffset();
  const CGPoint allowed_before = geometry().clamp(offset);
  content_size_ = size;
  size_changed();
  // Content that was in place must not end up beyond its edge when it shrinks; an offset set ahead
  // of its content waits for it.
  if (dragging_ || motion_.runs()) return;
  const CGPoint allowed = geometry().clamp(offset);
  const CGPoint kept{allowed_before.x == offset.x ? allowed.x : offset.x,
                     allowed_before.y == offset.y ? allowed.y : offset.y};
  if (kept != offset) self.setContentOffset(kept);
}

void ScrollView::set_content_inset(UIEdgeInsets inset) {
  if (inset == content_inset_) return;
  const CGPoint offset = self.contentOffset();
  const UIEdgeInsets before = content_inset_;
  content_inset_ = inset;
  size_changed();
  // Content that rests at its beginning stays there.
  const CGPoint moved{offset.x == -before.left ? -inset.left : offset.x,
                      offset.y == -before.top ? -inset.top : offset.y};
  if (!dragging_ && !motion_.runs() && moved != offset) self.setContentOffset(moved);
}

void ScrollView::set_scroll_enabled(BOOL enabled) {
  scroll_enabled_ = enabled;
  pan_->setEnabled(enabled);
  touch_delay_->setEnabled(enabled && delays_content_touches_);
}

void ScrollView::set_delays_content_touches(BOOL delays) {
  delays_content_touches_ = delays;
  touch_delay_->setEnabled(delays && scroll_enabled_);
}

void ScrollView::set_shows_horizontal_indicator(BOOL shows) {
  shows_horizontal_ = shows;
  update_indicators();
}

void ScrollView::set_shows_vertical_indicator(BOOL shows) {
  shows_vertical_ = shows;
  update_indicators();
}

void ScrollView::set_indicator_style(UIScrollViewIndicatorStyle style) {
  indicator_style_ = style;
  indicators_->set_style(style);
}

void ScrollView::flash_indicators() {
  update_indicators();
  indicators_->appear();
  indicators_->fade();
}

void ScrollView::update_indicators() {
  if (!indicators_) return;
  const ScrollGeometry now = geometry();
  const OffsetRange across = now.horizontal();
  const OffsetRange down = now.vertical();
  UIView::performWithoutAnimation(objc::block([&, this] {
    indicators_->place(now, self.contentOffset(), indicator_insets_,
                       {shows_horizontal_ && across.maximum > across.minimum,
                        shows_vertical_ && down.maximum > down.minimum});
  }));
}

void ScrollView::offset_changed() {
  self.setNeedsLayout();
  if (!moving_by_motion_) {
    if (motion_.kind() == ScrollMotion::Kind::Glide) continue_glide();
    if (motion_.kind() == ScrollMotion::Kind::Wheel) motion_.stop();
  }
  listener("scrollViewDidScroll:"_sel).scrollViewDidScroll(self);
}

void ScrollView::size_changed() {
  self.setNeedsLayout();
  if (motion_.kind() == ScrollMotion::Kind::Glide) continue_glide();
}

void ScrollView::stop_motion() {
  const ScrollMotion::Kind stopped = motion_.kind();
  motion_.stop();
  if (stopped != ScrollMotion::Kind::None && !dragging_) indicators_->fade();
  if (stopped == ScrollMotion::Kind::Glide)
    listener("scrollViewDidEndDecelerating:"_sel).scrollViewDidEndDecelerating(self);
}

void ScrollView::motion_finished(ScrollMotion::Kind kind) {
  // The wheel may turn on: its run ends with a pause.
  if (kind == ScrollMotion::Kind::Wheel) return;
  indicators_->fade();
  if (kind == ScrollMotion::Kind::Glide) {
    listener("scrollViewDidEndDecelerating:"_sel).scrollViewDidEndDecelerating(self);
  } else {
    listener("scrollViewDidEndScrollingAnimation:"_sel).scrollViewDidEndScrollingAnimation(self);
  }
}

}  // namespace host::uikit
