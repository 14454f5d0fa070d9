#pragma once

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "ui/M13ProgressViewRing.h"

namespace sonavue {

/// The implementation of `M13ProgressViewRing`. Three shape layers make up the look; drawing only
/// sets their paths.
class ProgressViewRing : public objc::Implementation<ProgressViewRing, M13ProgressViewRing> {
 public:
  using Implementation::Implementation;

  M13ProgressViewRing init();
  M13ProgressViewRing init_with_frame(CGRect frame);
  M13ProgressViewRing init_with_coder(objc::Object coder);
  void set_up();

  // Looks.
  void set_primary_color(UIColor color);
  void set_secondary_color(UIColor color);
  CGFloat background_ring_width() { return background_ring_width_; }
  void set_background_ring_width(CGFloat width);
  CGFloat progress_ring_width() { return progress_ring_width_; }
  void set_progress_ring_width(CGFloat width);
  BOOL background_ring_width_overriden() { return background_ring_width_overriden_; }
  BOOL progress_ring_width_overriden() { return progress_ring_width_overriden_; }
  BOOL show_percentage() { return show_percentage_; }
  void set_show_percentage(BOOL shows);
  NSNumberFormatter percentage_formatter() { return percentage_formatter_.get(); }
  UILabel percentage_label() { return percentage_label_.get(); }
  CAShapeLayer background_layer() { return background_layer_.get(); }
  CAShapeLayer progress_layer() { return progress_layer_.get(); }
  CAShapeLayer icon_layer() { return icon_layer_.get(); }

  // Layout.
  void set_frame(CGRect frame);
  void layout_subviews();

  // Drawing.
  void draw_rect(CGRect rect);
  void draw_background();
  void draw_icon();
  void draw_progress();
  void draw_success();
  void draw_failure();

  // Animated progress.
  void set_progress(float progress, BOOL animated);
  void animate_progress(CADisplayLink link);
  CADisplayLink display_link() { return display_link_.get(); }
  float animation_from_value() { return animation_from_value_; }
  float animation_to_value() { return animation_to_value_; }
  double animation_start_time() { return animation_start_time_; }

  // The indeterminate state and icons.
  void set_indeterminate(BOOL indeterminate);
  void perform_action(NSInteger action, BOOL animated);
  NSInteger current_action() { return current_action_; }
  CABasicAnimation show_animation();
  CABasicAnimation hide_animation();

 private:
  void make_layers();
  void make_percentage_label();
  void fit_ring_widths(CGFloat width);

  void store_progress(float progress);
  void drop_display_link();
  void show_frame_at(double time);

  void start_turning();
  void stop_turning();
  void fade_in(CAShapeLayer layer);
  template <class Completion>
  void fade_out(CAShapeLayer layer, Completion completion);
  void fade_to_current_action();
  void show_current_action();

  objc::Ref<CAShapeLayer> background_layer_;
  objc::Ref<CAShapeLayer> progress_layer_;
  objc::Ref<CAShapeLayer> icon_layer_;
  objc::Ref<UILabel> percentage_label_;
  objc::Ref<NSNumberFormatter> percentage_formatter_;
  objc::Ref<CADisplayLink> display_link_;
  CGFloat background_ring_width_ = 0;
  CGFloat progress_ring_width_ = 0;
  double animation_start_time_ = 0;
  float animation_from_value_ = 0;
  float animation_to_value_ = 0;
  NSInteger current_action_ = M13ProgressViewActionNone;
  // Lags behind the current action while the previous action's icon fades out.
  NSInteger drawn_action_ = M13ProgressViewActionNone;
  BOOL background_ring_width_overriden_ = NO;
  BOOL progress_ring_width_overriden_ = NO;
  BOOL show_percentage_ = NO;
};

}  // namespace sonavue
