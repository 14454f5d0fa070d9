#pragma once

#include <memory>
#include <optional>

#include "host/runtime/countdown.h"
#include "host/uikit/scroll/scroll_geometry.h"
#include "host/uikit/scroll/scroll_motion.h"
#include "host/uikit/scroll/wheel.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIScrollView.h"

namespace host::uikit {

class ScrollIndicators;

/// A view of content larger than itself. The offset is the origin of its bounds and is stored
/// nowhere else.
class ScrollView : public objc::Implementation<ScrollView, UIScrollView> {
 public:
  explicit ScrollView(UIScrollView owner);
  ~ScrollView();

  UIView init_with_frame(CGRect frame);
  void layout_subviews();

  // Where the content is.
  CGPoint content_offset() const { return self.bounds().origin; }
  void set_content_offset(CGPoint offset);
  void set_content_offset_animated(CGPoint offset, BOOL animated);
  void scroll_rect_to_visible(CGRect rect, BOOL animated);
  void set_bounds(CGRect bounds);
  void set_frame(CGRect frame);
  CGSize content_size() const { return content_size_; }
  void set_content_size(CGSize size);
  UIEdgeInsets content_inset() const { return content_inset_; }
  void set_content_inset(UIEdgeInsets inset);

  objc::Object delegate() const { return delegate_; }
  void set_delegate(objc::Object delegate) { delegate_ = delegate; }

  // How it moves.
  BOOL is_paging_enabled() const { return paging_; }
  void set_paging_enabled(BOOL paging) { paging_ = paging; }
  BOOL is_scroll_enabled() const { return scroll_enabled_; }
  void set_scroll_enabled(BOOL enabled);
  BOOL is_directional_lock_enabled() const { return directional_lock_; }
  void set_directional_lock_enabled(BOOL lock) { directional_lock_ = lock; }
  BOOL bounces() const { return bounces_; }
  void set_bounces(BOOL bounces) { bounces_ = bounces; }
  BOOL always_bounce_vertical() const { return always_bounce_vertical_; }
  void set_always_bounce_vertical(BOOL bounces) { always_bounce_vertical_ = bounces; }
  BOOL always_bounce_horizontal() const { return always_bounce_horizontal_; }
  void set_always_bounce_horizontal(BOOL bounces) { always_bounce_horizontal_ = bounces; }
  CGFloat deceleration_rate() const { return deceleration_rate_; }
  void set_deceleration_rate(CGFloat rate) { deceleration_rate_ = rate; }
  BOOL scrolls_to_top() const { return scrolls_to_top_; }
  void set_scrolls_to_top(BOOL scrolls) { scrolls_to_top_ = scrolls; }

  // Indicators.
  BOOL shows_horizontal_indicator() const { return shows_horizontal_; }
  void set_shows_horizontal_indicator(BOOL shows);
  BOOL shows_vertical_indicator() const { return shows_vertical_; }
  void set_shows_vertical_indicator(BOOL shows);
  UIEdgeInsets indicator_insets() const { return indicator_insets_; }
  void set_indicator_insets(UIEdgeInsets insets) { indicator_insets_ = insets; }
  UIScrollViewIndicatorStyle indicator_style() const { return indicator_style_; }
  void set_indicator_style(UIScrollViewIndicatorStyle style);
  void flash_indicators();

  // Touches.
  BOOL delays_content_touches() const { return delays_content_touches_; }
  void set_delays_content_touches(BOOL delays);
  BOOL can_cancel_content_touches() const { return can_cancel_content_touches_; }
  void set_can_cancel_content_touches(BOOL can) { can_cancel_content_touches_ = can; }
  BOOL touches_should_cancel_in(UIView view);
  UIScrollViewKeyboardDismissMode keyboard_dismiss_mode() const { return keyboard_dismiss_mode_; }
  void set_keyboard_dismiss_mode(UIScrollViewKeyboardDismissMode mode) {
    keyboard_dismiss_mode_ = mode;
  }
  BOOL is_tracking() const { return tracking_; }
  BOOL is_dragging() const { return dragging_; }
  BOOL is_decelerating() const { return motion_.kind() == ScrollMotion::Kind::Glide; }
  UIPanGestureRecognizer pan() const { return pan_.get(); }
  BOOL gesture_recognizer_should_begin(UIGestureRecognizer recognizer);
  void handle_pan(UIPanGestureRecognizer recognizer);

  // For the recognisers of this view.
  enum class Caught { Still, Moving };
  /// A finger is down on the content. Moving content is caught: it stops.
  Caught finger_down(UIView touched);
  void finger_gone();

  // For the desktop's wheel.
  /// Whether the content can still move in the direction of `by`.
  bool can_turn(CGPoint by) const;
  void turn(CGPoint by, WheelKind kind);

 private:
  enum class Axis { Horizontal, Vertical };
  /// The axes along which the current drag moves the content.
  struct Axes {
    bool horizontal = false;
    bool vertical = false;
  };
  /// A series of turns without a pause, which the delegate takes for one drag.
  struct WheelRun {
    CGPoint began;
    /// What the offset, which is on a pixel, lacks of the turns so far.
    CGPoint rest;
  };

  ScrollGeometry geometry() const;
  UIScrollViewDelegate listener(objc::Sel selector) const;
  Axes draggable_axes() const;
  Edges edges(bool always_bounces, OffsetRange range) const;
  void offset_changed();
  void size_changed();
  void stop_motion();
  void motion_finished(ScrollMotion::Kind kind);
  void continue_glide();

  void begin_drag();
  void begin_pull();
  void drag();
  void end_drag(CGPoint finger_velocity);
  void release(AxisGlide horizontal, AxisGlide vertical, CGPoint velocity);
  /// Where the finger has pulled the content, ignoring edges.
  CGPoint pull() const;
  CGPoint dragged_offset(CGPoint pulled) const;
  CGPoint velocity_of_content(CGPoint finger_velocity) const;
  AxisGlide glide_along(Axis axis, double offset, double velocity) const;
  AxisGlide glide_to(Axis axis, double offset, double velocity, double target) const;

  void begin_wheel();
  void end_wheel();
  CGPoint wheel_position() const;
  CGPoint wheel_target(CGPoint by, WheelKind kind) const;
  void turn_page(CGPoint by);

  void update_indicators();

  ScrollMotion motion_;
  std::unique_ptr<ScrollIndicators> indicators_;
  objc::Ref<UIPanGestureRecognizer> pan_;
  objc::Ref<UIGestureRecognizer> touch_delay_;
  objc::Object delegate_;
  UIView touched_;

  CGSize content_size_;
  UIEdgeInsets content_inset_;
  UIEdgeInsets indicator_insets_;
  CGFloat deceleration_rate_ = UIScrollViewDecelerationRateNormal;
  UIScrollViewIndicatorStyle indicator_style_ = UIScrollViewIndicatorStyleDefault;
  UIScrollViewKeyboardDismissMode keyboard_dismiss_mode_ = UIScrollViewKeyboardDismissModeNone;

  Axes axes_;
  CGPoint drag_translation_;
  CGPoint drag_pull_;
  std::optional<WheelRun> wheel_;
  Countdown wheel_pause_;
  double touch_time_ = 0;
  /// Counts the offsets set with `setContentOffset:animated:`.
  unsigned settings_ = 0;
  bool moving_by_motion_ = false;
  /// Whether the finger that is down has landed on moving content.
  bool caught_ = false;

  BOOL paging_ = NO;
  BOOL scroll_enabled_ = YES;
  BOOL directional_lock_ = NO;
  BOOL bounces_ = YES;
  BOOL always_bounce_vertical_ = NO;
  BOOL always_bounce_horizontal_ = NO;
  BOOL scrolls_to_top_ = YES;
  BOOL shows_horizontal_ = YES;
  BOOL shows_vertical_ = YES;
  BOOL delays_content_touches_ = YES;
  BOOL can_cancel_content_touches_ = YES;
  BOOL tracking_ = NO;
  BOOL dragging_ = NO;
};

void export_scroll_view();

}  // namespace host::uikit
