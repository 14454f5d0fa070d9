#include "host/springboard/surfaces/unlock_text.h"

#include <cmath>

#include "host/springboard/common/make_view.h"
#include "host/springboard/parts/surface_parts.h"
#include "platform/Foundation/NSValue.h"
#include "platform/QuartzCore/CABasicAnimation.h"
#include "platform/QuartzCore/CAGradientLayer.h"

namespace host::springboard {
namespace {

constexpr CGFloat kUnlockTextSize = 23;
constexpr CGFloat kDim = 0.42;
constexpr double kRun = 2.6;
// In widths of the text: the light starts to the left of the text and ends to the right of it.
constexpr CGFloat kLightWidth = 3;

objc::Object color(CGFloat alpha) {
  return objc::Object(reinterpret_cast<objc::Id>(UIColor::colorWithWhite(1, alpha).CGColor()));
}

}  // namespace

UnlockText::UnlockText(UIView parent, CGRect frame) : view_(make_view<UIView>(frame)) {
  view_->setUserInteractionEnabled(NO);
  parent.addSubview(*view_);
  const auto label = add_label(*view_, view_->bounds(),
                               {"HelveticaNeue-Light"_ns, kUnlockTextSize, UIColor::whiteColor()});
  label->setText("\xE2\x80\xBA  slide to unlock"_ns);
  const CAGradientLayer light = CAGradientLayer::layer();
  const objc::Object colors[] = {color(kDim), color(1), color(kDim)};
  light.setColors(NSArray::arrayWithObjects(colors, 3));
  const objc::Object places[] = {NSNumber::numberWithDouble(0.42), NSNumber::numberWithDouble(0.5),
                                 NSNumber::numberWithDouble(0.58)};
  light.setLocations(NSArray::arrayWithObjects(places, 3));
  light.setStartPoint({0, 0.5});
  light.setEndPoint({1, 0.5});
  light.setFrame({-2 * frame.size.width, 0, kLightWidth * frame.size.width, frame.size.height});
  view_->layer().setMask(light);
  light_.reset(light);
}

void UnlockText::start_shimmer() const {
  const CGFloat width = view_->bounds().size.width;
  const auto run = CABasicAnimation::animationWithKeyPath("position.x"_ns);
  run.setFromValue(NSNumber::numberWithDouble(-width / 2));
  run.setToValue(NSNumber::numberWithDouble(width * 1.5));
  run.setDuration(kRun);
  run.setRepeatCount(HUGE_VALF);
  light_->addAnimation(run, "shimmer"_ns);
}

void UnlockText::stop_shimmer() const {
  light_->removeAllAnimations();
}

}  // namespace host::springboard
