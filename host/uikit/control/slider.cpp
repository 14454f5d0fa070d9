#include "host/uikit/control/slider.h"

#include <algorithm>

#include "platform/UIKit/UIColor.h"

namespace host::uikit {
namespace {

constexpr CGFloat kHeight = 31;
constexpr CGFloat kLine = 2;
constexpr CGFloat kDisc = 28;
constexpr CGFloat kDiscEdgeAlpha = 0.15;
constexpr CGFloat kLineGrey = 0.72;
constexpr double kSlideDuration = 0.25;

UIView rounded(UIColor color, CGFloat height) {
  const UIView part = UIView::alloc().initWithFrame({0, 0, height, height});
  part.setUserInteractionEnabled(NO);
  part.setBackgroundColor(color);
  part.layer().setCornerRadius(height / 2);
  return part;
}

}  // namespace

UIView SliderControl::init_with_frame(CGRect frame) {
  if (!super<UIView>("initWithFrame:"_sel, frame)) return nil;
  line_ = objc::Ref<UIView>::adopt(rounded(UIColor::colorWithWhite(kLineGrey, 1), kLine));
  filled_ = objc::Ref<UIView>::adopt(rounded(self.tintColor(), kLine));
  knob_ = objc::Ref<UIView>::adopt(rounded(UIColor::whiteColor(), kDisc));
  knob_->layer().setBorderWidth(0.5);
  knob_->layer().setBorderColor(UIColor::colorWithWhite(0, kDiscEdgeAlpha).CGColor());
  for (const auto& part : {line_, filled_, knob_})
    self.addSubview(part.get());
  return self;
}

CGFloat SliderControl::length() const {
  return std::max<CGFloat>(self.bounds().size.width - kDisc, 1);
}

void SliderControl::layout_subviews() {
  super<>("layoutSubviews"_sel);
  const CGSize size = self.bounds().size;
  const float range = maximum_ - minimum_;
  const CGFloat part = range > 0 ? (value_ - minimum_) / range : 0;
  const CGFloat middle = kDisc / 2 + part * length();
  const CGFloat top = (size.height - kLine) / 2;
  line_->setFrame({0, top, size.width, kLine});
  filled_->setFrame({0, top, middle, kLine});
  knob_->setFrame({middle - kDisc / 2, (size.height - kDisc) / 2, kDisc, kDisc});
}

CGSize SliderControl::size_that_fits(CGSize size) const {
  return {size.width, kHeight};
}

void SliderControl::tint_color_did_change() {
  super<>("tintColorDidChange"_sel);
  if (filled_) filled_->setBackgroundColor(self.tintColor());
}

void SliderControl::set_value(float value) {
  value_ = std::max(minimum_, std::min(value, maximum_));
  self.setNeedsLayout();
}

void SliderControl::set_value_animated(float value, BOOL animated) {
  set_value(value);
  if (animated)
    UIView::animateWithDuration(kSlideDuration, objc::block([this] { self.layoutIfNeeded(); }));
}

void SliderControl::set_minimum(float value) {
  minimum_ = value;
  maximum_ = std::max(maximum_, value);
  set_value(value_);
}

void SliderControl::set_maximum(float value) {
  maximum_ = value;
  minimum_ = std::min(minimum_, value);
  set_value(value_);
}

BOOL SliderControl::begin_tracking(UITouch touch, UIEvent) {
  landed_ = touch.locationInView(self).x;
  value_before_ = value_;
  return YES;
}

BOOL SliderControl::continue_tracking(UITouch touch, UIEvent) {
  const CGFloat moved = (touch.locationInView(self).x - landed_) / length();
  const float before = value_;
  set_value(value_before_ + static_cast<float>(moved) * (maximum_ - minimum_));
  if (continuous_ && value_ != before) self.sendActionsForControlEvents(UIControlEventValueChanged);
  return YES;
}

void SliderControl::end_tracking(UITouch, UIEvent) {
  if (!continuous_ && value_ != value_before_)
    self.sendActionsForControlEvents(UIControlEventValueChanged);
}

void SliderControl::cancel_tracking(UIEvent) {
  end_tracking(nil, nil);
}

void export_slider() {
  using Slider = SliderControl;
  objc::ClassBuilder("UISlider", "UIControl")
      .state<Slider>()
      .method<&Slider::init_with_frame>("initWithFrame:")
      .method<&Slider::value>("value")
      .method<&Slider::set_value>("setValue:")
      .method<&Slider::set_value_animated>("setValue:animated:")
      .method<&Slider::minimum>("minimumValue")
      .method<&Slider::set_minimum>("setMinimumValue:")
      .method<&Slider::maximum>("maximumValue")
      .method<&Slider::set_maximum>("setMaximumValue:")
      .method<&Slider::is_continuous>("isContinuous")
      .method<&Slider::set_continuous>("setContinuous:")
      .method<&Slider::layout_subviews>("layoutSubviews")
      .method<&Slider::size_that_fits>("sizeThatFits:")
      .method<&Slider::tint_color_did_change>("tintColorDidChange")
      .method<&Slider::begin_tracking>("beginTrackingWithTouch:withEvent:")
      .method<&Slider::continue_tracking>("continueTrackingWithTouch:withEvent:")
      .method<&Slider::end_tracking>("endTrackingWithTouch:withEvent:")
      .method<&Slider::cancel_tracking>("cancelTrackingWithEvent:")
      .finish();
}

}  // namespace host::uikit
