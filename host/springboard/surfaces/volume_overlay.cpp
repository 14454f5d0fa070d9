#include "host/springboard/surfaces/volume_overlay.h"

#include <algorithm>
#include <cmath>

#include "host/springboard/common/make_view.h"
#include "host/springboard/parts/surface_parts.h"
#include "host/springboard/parts/surface_window.h"
#include "host/springboard/parts/window_levels.h"

namespace host::springboard {
namespace {

constexpr CGFloat kSide = 156;
constexpr CGFloat kRadius = 10;
constexpr double kOverlayStay = 1.5;
constexpr double kFade = 0.4;
constexpr CGFloat kStepsLeft = 14;
constexpr CGFloat kStepsTop = 134;
constexpr CGFloat kStepHeight = 7;
constexpr CGFloat kStepGap = 1;
constexpr CGFloat kInk = 0.3;

}  // namespace

VolumeOverlay::~VolumeOverlay() {
  hide_at_once();
}

void VolumeOverlay::show(double volume) {
  if (!window_) build();
  ++shows_;
  stop_waiting();
  if (plate_->alpha() < 1) {
    plate_->layer().removeAllAnimations();
    plate_->setAlpha(1);
  }
  lit_ = static_cast<int>(std::lround(std::clamp(volume, 0.0, 1.0) * kSteps));
  for (int step = 0; step < kSteps; ++step)
    steps_[static_cast<std::size_t>(step)]->setHidden(step < lit_ ? NO : YES);
  speaker_->setImage(glyph(lit_ > 0 ? "surface-volume"_ns : "surface-volume-mute"_ns));
  RunLoop& loop = RunLoop::main();
  fading_ = loop.add_timer(loop.now() + kOverlayStay, 0, [this] {
    fading_.reset();
    fade();
  });
}

void VolumeOverlay::build() {
  window_ = make_surface_window(kVolumeLevel);
  window_->setUserInteractionEnabled(NO);
  const CGPoint middle = CGRect(window_->bounds()).centre();
  plate_ = make_view<UIView>({middle.x - kSide / 2, middle.y - kSide / 2, kSide, kSide});
  plate_->layer().setCornerRadius(kRadius);
  plate_->setClipsToBounds(YES);
  window_->addSubview(*plate_);
  add_backdrop(*plate_, plate_->bounds(), kPaperBackdrop);
  const UIColor ink = UIColor::colorWithWhite(kInk, 1);
  const auto title = add_label(*plate_, {0, 9, kSide, 22}, {"HelveticaNeue-Medium"_ns, 16, ink});
  title->setText("Volume"_ns);
  speaker_ = add_glyph(*plate_, "surface-volume"_ns, {8, 42, kSide - 8, 78}, ink);

  const CGFloat width = kSide - 2 * kStepsLeft;
  add_plate(*plate_,
            {kStepsLeft - kStepGap, kStepsTop - kStepGap, width + 2 * kStepGap,
             kStepHeight + 2 * kStepGap},
            ink);
  const CGFloat step_width = (width - (kSteps - 1) * kStepGap) / kSteps;
  for (int step = 0; step < kSteps; ++step)
    steps_.push_back(add_plate(
        *plate_, {kStepsLeft + step * (step_width + kStepGap), kStepsTop, step_width, kStepHeight},
        UIColor::whiteColor()));
  window_->setHidden(NO);
}

void VolumeOverlay::fade() {
  const auto gone = objc::block([this, show = shows_, life = std::weak_ptr<void>(life_)](BOOL) {
    if (!life.expired() && show == shows_) hide_at_once();
  });
  UIView::animateWithDuration(kFade, objc::block([plate = *plate_] { plate.setAlpha(0); }), gone);
}

void VolumeOverlay::hide_at_once() {
  stop_waiting();
  steps_.clear();
  speaker_.reset();
  plate_.reset();
  if (window_) window_->setHidden(YES);
  window_.reset();
}

void VolumeOverlay::stop_waiting() {
  if (fading_ && RunLoop::has_main()) RunLoop::main().remove_timer(*fading_);
  fading_.reset();
}

}  // namespace host::springboard
