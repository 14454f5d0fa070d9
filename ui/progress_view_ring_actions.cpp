#include "platform/Foundation/NSValue.h"
#include "platform/QuartzCore/CATransaction.h"
#include "ui/progress_view_ring.h"

namespace sonavue {
namespace {

constexpr auto kFullTurn = static_cast<float>(2 * 3.14159265358979323846);
constexpr double kSecondsPerTurn = 1.0;

NSString show_key() {
  return "Show"_ns;
}
NSString hide_key() {
  return "Hide"_ns;
}
NSString rotation_key() {
  return "rotationAnimation"_ns;
}

// The animation keeps its final value. Fading the layer the other way removes it.
CABasicAnimation fade(float from, float to, double seconds) {
  const CABasicAnimation animation = CABasicAnimation::animationWithKeyPath("opacity"_ns);
  animation.setFromValue(NSNumber::numberWithFloat(from));
  animation.setToValue(NSNumber::numberWithFloat(to));
  animation.setDuration(seconds);
  animation.setRepeatCount(1);
  animation.setFillMode(kCAFillModeForwards());
  animation.setRemovedOnCompletion(NO);
  return animation;
}

CABasicAnimation endless_rotation() {
  const CABasicAnimation rotation =
      CABasicAnimation::animationWithKeyPath("transform.rotation.z"_ns);
  rotation.setToValue(NSNumber::numberWithFloat(kFullTurn));
  rotation.setDuration(kSecondsPerTurn);
  rotation.setCumulative(YES);
  rotation.setRepeatCount(__builtin_huge_valf());
  return rotation;
}

}  // namespace

CABasicAnimation ProgressViewRing::show_animation() {
  return fade(0, 1, self.animationDuration());
}

CABasicAnimation ProgressViewRing::hide_animation() {
  return fade(1, 0, self.animationDuration());
}

void ProgressViewRing::fade_in(CAShapeLayer layer) {
  layer.removeAnimationForKey(hide_key());
  layer.addAnimation(self.showAnimation(), show_key());
}

template <class Completion>
void ProgressViewRing::fade_out(CAShapeLayer layer, Completion completion) {
  CATransaction::begin();
  CATransaction::setCompletionBlock(objc::block(completion));
  layer.removeAnimationForKey(show_key());
  layer.addAnimation(self.hideAnimation(), hide_key());
  CATransaction::commit();
}

void ProgressViewRing::set_indeterminate(BOOL indeterminate) {
  if (indeterminate == self.indeterminate()) return;
  super<>("setIndeterminate:"_sel, indeterminate);
  if (indeterminate) {
    start_turning();
  } else {
    stop_turning();
  }
}

void ProgressViewRing::start_turning() {
  fade_in(background_layer_.get());
  self.drawBackground();
  background_layer_->addAnimation(endless_rotation(), rotation_key());
}

void ProgressViewRing::stop_turning() {
  const auto ring = objc::Ref<M13ProgressViewRing>::retain(self);
  fade_out(background_layer_.get(), [ring] {
    // It may have become indeterminate again while it faded.
    if (ring->indeterminate()) return;
    ring->backgroundLayer().removeAnimationForKey(rotation_key());
    ring->drawBackground();
  });
}

void ProgressViewRing::perform_action(NSInteger action, BOOL animated) {
  current_action_ = action;
  if (!animated) {
    show_current_action();
  } else if (drawn_action_ != action) {
    fade_to_current_action();
  }
}

void ProgressViewRing::fade_to_current_action() {
  const auto ring = objc::Ref<M13ProgressViewRing>::retain(self);
  fade_out(icon_layer_.get(), [ring] {
    auto& state = objc::state_of<ProgressViewRing>(ring.get());
    // In the meantime an action without animation may have shown its icon.
    if (state.drawn_action_ == state.current_action_) return;
    state.show_current_action();
    state.fade_in(state.icon_layer_.get());
  });
}

void ProgressViewRing::show_current_action() {
  drawn_action_ = current_action_;
  icon_layer_->removeAnimationForKey(hide_key());
  self.drawIcon();
}

}  // namespace sonavue
