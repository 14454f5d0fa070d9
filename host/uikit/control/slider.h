#pragma once

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIControl.h"

struct UISlider : objc::Bound<UISlider, "UISlider", UIControl> {
  float value() const { return call<"value", float>(); }
  void setValue(float value) const { call<"setValue:">(value); }
  void setMinimumValue(float value) const { call<"setMinimumValue:">(value); }
  void setMaximumValue(float value) const { call<"setMaximumValue:">(value); }
  /// Whether the action is also sent while a finger moves the knob.
  void setContinuous(BOOL continuous) const { call<"setContinuous:">(continuous); }
};

namespace host::uikit {

/// A knob on a line, which moves as far as the finger that has landed anywhere on the slider.
class SliderControl : public objc::Implementation<SliderControl, UISlider> {
 public:
  using Implementation::Implementation;

  UIView init_with_frame(CGRect frame);
  float value() const { return value_; }
  void set_value(float value);
  void set_value_animated(float value, BOOL animated);
  float minimum() const { return minimum_; }
  void set_minimum(float value);
  float maximum() const { return maximum_; }
  void set_maximum(float value);
  BOOL is_continuous() const { return continuous_; }
  void set_continuous(BOOL continuous) { continuous_ = continuous; }
  void layout_subviews();
  CGSize size_that_fits(CGSize size) const;
  void tint_color_did_change();

  BOOL begin_tracking(UITouch touch, UIEvent event);
  BOOL continue_tracking(UITouch touch, UIEvent event);
  void end_tracking(UITouch touch, UIEvent event);
  void cancel_tracking(UIEvent event);

 private:
  CGFloat length() const;

  objc::Ref<UIView> line_;
  objc::Ref<UIView> filled_;
  objc::Ref<UIView> knob_;
  float minimum_ = 0;
  float maximum_ = 1;
  float value_ = 0;
  BOOL continuous_ = YES;
  // Where the finger and the value were when it landed.
  CGFloat landed_ = 0;
  float value_before_ = 0;
};

void export_slider();

}  // namespace host::uikit
