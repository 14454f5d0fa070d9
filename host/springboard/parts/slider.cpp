#include "host/springboard/parts/slider.h"

#include <algorithm>

#include "host/springboard/common/make_view.h"

namespace host::springboard {
namespace {

constexpr CGFloat kTrackHeight = 2;
constexpr CGFloat kKnob = 26;
constexpr CGFloat kShadowGrowth = 1;
constexpr CGFloat kShadowDrop = 1.5;
constexpr CGFloat kShadowAlpha = 0.16;

objc::Ref<UIView> add_line(UIView slider, UIColor color) {
  auto line = make_view<UIView>({});
  line->setBackgroundColor(color);
  line->layer().setCornerRadius(kTrackHeight / 2);
  line->setUserInteractionEnabled(NO);
  slider.addSubview(*line);
  return line;
}

objc::Ref<UIView> make_disc(CGRect frame, UIColor color) {
  auto disc = make_view<UIView>(frame);
  disc->setBackgroundColor(color);
  disc->layer().setCornerRadius(frame.size.width / 2);
  disc->setUserInteractionEnabled(NO);
  return disc;
}

}  // namespace

objc::Ref<SBSurfaceSlider> Slider::make(CGRect frame, const SliderColors& colors,
                                        std::function<void(double)> on_change) {
  auto made = make_view<SBSurfaceSlider>(frame);
  auto& state = objc::state_of<Slider>(*made);
  state.on_change_ = std::move(on_change);
  state.build(colors);
  return made;
}

void Slider::build(const SliderColors& colors) {
  empty_ = add_line(self, *colors.empty);
  filled_ = add_line(self, *colors.filled);
  knob_ = make_view<UIView>({0, 0, kKnob, kKnob});
  knob_->setUserInteractionEnabled(NO);
  const CGFloat shadow = kKnob + 2 * kShadowGrowth;
  knob_->addSubview(*make_disc({-kShadowGrowth, kShadowDrop - kShadowGrowth, shadow, shadow},
                               UIColor::colorWithWhite(0, kShadowAlpha)));
  knob_->addSubview(*make_disc({0, 0, kKnob, kKnob}, UIColor::whiteColor()));
  self.addSubview(*knob_);
  place_knob();
}

void Slider::place_knob() const {
  const CGSize size = self.bounds().size;
  const CGFloat middle = kKnob / 2 + value_ * (size.width - kKnob);
  const CGFloat top = (size.height - kTrackHeight) / 2;
  filled_->setFrame({0, top, middle, kTrackHeight});
  empty_->setFrame({middle, top, size.width - middle, kTrackHeight});
  knob_->setCenter({middle, size.height / 2});
}

void Slider::show(double value) {
  value = std::clamp(value, 0.0, 1.0);
  if (held_ || value == value_) return;
  value_ = value;
  place_knob();
}

void Slider::touches_began(NSSet, UIEvent) {
  held_ = true;
}

void Slider::touches_moved(NSSet touches, UIEvent) {
  const auto touch = objc::cast<UITouch>(touches.anyObject());
  const CGFloat way = touch.locationInView(self).x - touch.previousLocationInView(self).x;
  value_ = std::clamp(value_ + way / (self.bounds().size.width - kKnob), 0.0, 1.0);
  place_knob();
  if (on_change_) on_change_(value_);
}

void Slider::touches_ended(NSSet, UIEvent) {
  held_ = false;
}

void Slider::touches_cancelled(NSSet, UIEvent) {
  held_ = false;
}

void export_slider() {
  if (SBSurfaceSlider::cls()) return;
  objc::ClassBuilder("SBSurfaceSlider", "UIView")
      .state<Slider>()
      .method<&Slider::touches_began>("touchesBegan:withEvent:")
      .method<&Slider::touches_moved>("touchesMoved:withEvent:")
      .method<&Slider::touches_ended>("touchesEnded:withEvent:")
      .method<&Slider::touches_cancelled>("touchesCancelled:withEvent:")
      .finish();
}

}  // namespace host::springboard
