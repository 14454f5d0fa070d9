#include "host/uikit/control/switch.h"

#include <cmath>

#include "platform/CoreGraphics/CGAffineTransform.h"
#include "platform/CoreGraphics/CGRect.h"

namespace host::uikit {
namespace {

constexpr CGSize kSize{51, 31};
constexpr CGFloat kRim = 1.5;
constexpr CGFloat kKnob = 28;
/// A pressed knob stretches towards the other side.
constexpr CGFloat kPressedKnob = 35;
constexpr CGFloat kShadowDrop = 2;
constexpr CGFloat kShadowGrowth = 0.5;
constexpr CGFloat kShadowAlpha = 0.09;
constexpr CGFloat kKnobEdgeAlpha = 0.1;
constexpr CGFloat kDisabledSwitchAlpha = 0.5;
/// A finger that travels this far drags the knob instead of tapping it.
constexpr CGFloat kDragStart = 5;
constexpr double kDuration = 0.45;
constexpr CGFloat kDamping = 0.78;
/// A shrunk view keeps a trace of its size, since a singular transform could not be animated back.
constexpr CGFloat kShrunk = 0.001;

UIColor rim_color() {
  return UIColor::colorWithRed(229.0 / 255, 229.0 / 255, 229.0 / 255, 1);
}

UIColor default_on_tint() {
  return UIColor::colorWithRed(76.0 / 255, 217.0 / 255, 100.0 / 255, 1);
}

objc::Ref<UIView> add_part(UIView parent, CGRect frame, UIColor color) {
  const auto part = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame(frame));
  part->setUserInteractionEnabled(NO);
  part->setBackgroundColor(color);
  part->layer().setCornerRadius(frame.size.height / 2);
  parent.addSubview(part.get());
  return part;
}

}  // namespace

UIView Switch::init_with_frame(CGRect frame) {
  if (!super<UIView>("initWithFrame:"_sel, CGRect{frame.origin, kSize})) return nil;
  build();
  return self;
}

void Switch::build() {
  rim_ = add_part(self, {{}, kSize}, rim_color());
  well_ = add_part(self, {kRim, kRim, kSize.width - 2 * kRim, kSize.height - 2 * kRim},
                   UIColor::whiteColor());
  fill_ = add_part(self, {{}, kSize}, default_on_tint());
  shadow_ = add_part(self, {0, 0, kKnob, kKnob}, UIColor::colorWithWhite(0, kShadowAlpha));
  knob_ = add_part(self, {0, 0, kKnob, kKnob}, UIColor::whiteColor());
  knob_->layer().setBorderWidth(0.5);
  knob_->layer().setBorderColor(UIColor::colorWithWhite(0, kKnobEdgeAlpha).CGColor());
  place();
}

void Switch::place() const {
  const CGFloat width = pressed_ ? kPressedKnob : kKnob;
  const CGFloat left = shown_on_ ? kSize.width - kRim - width : kRim;
  const CGRect knob{left, kRim, width, kKnob};
  knob_->setFrame(knob);
  shadow_->setFrame(
      CGRectOffset(CGRectInset(knob, -kShadowGrowth, -kShadowGrowth), 0, kShadowDrop));
  fill_->setAlpha(shown_on_ ? 1 : 0);
  // While pressed, the inside of the empty track shrinks towards the knob: the track turns grey.
  const CGFloat scale = shown_on_ || pressed_ ? kShrunk : 1;
  well_->setTransform(CGAffineTransformMakeScale(scale, scale));
}

void Switch::show(bool animated) {
  if (!animated || !self.window())
    return UIView::performWithoutAnimation(objc::block([this] { place(); }));
  UIView::animateWithDuration(
      kDuration, 0, kDamping, 0,
      UIViewAnimationOptionAllowUserInteraction | UIViewAnimationOptionBeginFromCurrentState,
      objc::block([this] { place(); }), nullptr);
}

void Switch::set_on(BOOL on) {
  self.setOn(on, NO);
}

void Switch::set_on_animated(BOOL on, BOOL animated) {
  on_ = shown_on_ = on ? YES : NO;
  show(animated);
}

void Switch::set_on_tint(UIColor color) {
  on_tint_.reset(color);
  fill_->setBackgroundColor(color ? color : default_on_tint());
}

void Switch::set_thumb_tint(UIColor color) {
  thumb_tint_.reset(color);
  knob_->setBackgroundColor(color ? color : UIColor::whiteColor());
}

void Switch::set_enabled(BOOL enabled) {
  super<>("setEnabled:"_sel, enabled);
  self.setAlpha(enabled ? 1 : kDisabledSwitchAlpha);
}

void Switch::set_frame(CGRect frame) {
  super<>("setFrame:"_sel, CGRect{frame.origin, kSize});
}

CGSize Switch::size_that_fits(CGSize) {
  return kSize;
}

BOOL Switch::begin_tracking(UITouch touch, UIEvent event) {
  if (!super<BOOL>("beginTrackingWithTouch:withEvent:"_sel, touch, event)) return NO;
  pressed_ = true;
  dragged_ = false;
  pressed_at_ = touch.locationInView(self).x;
  show(true);
  return YES;
}

BOOL Switch::continue_tracking(UITouch touch, UIEvent) {
  const CGFloat x = touch.locationInView(self).x;
  dragged_ = dragged_ || std::abs(x - pressed_at_) > kDragStart;
  const BOOL side = x > kSize.width / 2 ? YES : NO;
  if (dragged_ && side != shown_on_) {
    shown_on_ = side;
    show(true);
  }
  return YES;
}

void Switch::end_tracking(UITouch touch, UIEvent event) {
  super<>("endTrackingWithTouch:withEvent:"_sel, touch, event);
  const BOOL other = on_ ? NO : YES;
  finish(dragged_ ? shown_on_ : other);
}

void Switch::cancel_tracking(UIEvent event) {
  super<>("cancelTrackingWithEvent:"_sel, event);
  finish(on_);
}

void Switch::finish(BOOL on) {
  const bool changed = on != on_;
  pressed_ = dragged_ = false;
  on_ = shown_on_ = on;
  show(true);
  if (changed) self.sendActionsForControlEvents(UIControlEventValueChanged);
}

void export_switch() {
  objc::ClassBuilder("UISwitch", "UIControl")
      .state<Switch>()
      .method<&Switch::init_with_frame>("initWithFrame:")
      .method<&Switch::is_on>("isOn")
      .method<&Switch::set_on>("setOn:")
      .method<&Switch::set_on_animated>("setOn:animated:")
      .method<&Switch::on_tint>("onTintColor")
      .method<&Switch::set_on_tint>("setOnTintColor:")
      .method<&Switch::thumb_tint>("thumbTintColor")
      .method<&Switch::set_thumb_tint>("setThumbTintColor:")
      .method<&Switch::set_enabled>("setEnabled:")
      .method<&Switch::set_frame>("setFrame:")
      .method<&Switch::size_that_fits>("sizeThatFits:")
      .method<&Switch::begin_tracking>("beginTrackingWithTouch:withEvent:")
      .method<&Switch::continue_tracking>("continueTrackingWithTouch:withEvent:")
      .method<&Switch::end_tracking>("endTrackingWithTouch:withEvent:")
      .method<&Switch::cancel_tracking>("cancelTrackingWithEvent:")
      .finish();
}

}  // namespace host::uikit
