#include "host/uikit/view/block_animation.h"

#include <vector>

#include "host/quartzcore/animations/timing_function.h"
#include "host/uikit/view/animation_run.h"
#include "objc/class_builder.h"

namespace host::uikit {
namespace {

constexpr UIViewAnimationOptions kCurveMask = 7 << 16;
constexpr UIViewAnimationOptions kKeyboardCurve = UIViewAnimationCurveKeyboard << 16;

std::vector<BlockAnimation> running_blocks;
BOOL animations_enabled = YES;

/// A nested block takes the timing of the outer one, unless its options override it.
BlockAnimation inherited(BlockAnimation asked) {
  if (running_blocks.empty()) return asked;
  const BlockAnimation& outer = running_blocks.back();
  if (!asked.has(UIViewAnimationOptionOverrideInheritedDuration)) asked.duration = outer.duration;
  if (!asked.has(UIViewAnimationOptionOverrideInheritedCurve)) {
    asked.options = (asked.options & ~kCurveMask) | (outer.options & kCurveMask);
  }
  if (!asked.has(UIViewAnimationOptionOverrideInheritedOptions)) {
    asked.options |= outer.options & ~kCurveMask;
  }
  asked.delay += outer.delay;
  return asked;
}

void animate(BlockAnimation asked, objc::Block<void()> animations,
             objc::Block<void(BOOL)> completion) {
  asked = inherited(asked);
  asked.run = std::make_shared<AnimationRun>(completion);
  if (asked.spring_damping <= 0) asked.curve = quartzcore::curve_of(timing_function(asked.options));
  const auto run = asked.run;
  running_blocks.push_back(asked);
  animations();
  running_blocks.pop_back();
  run->close();
}

void animate_plainly(objc::Object, double duration, objc::Block<void()> animations) {
  animate({.duration = duration}, animations, nullptr);
}

void animate_with_completion(objc::Object, double duration, objc::Block<void()> animations,
                             objc::Block<void(BOOL)> completion) {
  animate({.duration = duration}, animations, completion);
}

void animate_with_options(objc::Object, double duration, double delay,
                          UIViewAnimationOptions options, objc::Block<void()> animations,
                          objc::Block<void(BOOL)> completion) {
  animate({.duration = duration, .delay = delay, .options = options}, animations, completion);
}

void animate_with_spring(objc::Object, double duration, double delay, CGFloat damping,
                         CGFloat velocity, UIViewAnimationOptions options,
                         objc::Block<void()> animations, objc::Block<void(BOOL)> completion) {
  animate({.duration = duration,
           .delay = delay,
           .options = options,
           .spring_damping = damping,
           .spring_velocity = velocity},
          animations, completion);
}

void set_animations_enabled(objc::Object, BOOL enabled) {
  animations_enabled = enabled;
}
BOOL are_animations_enabled(objc::Object) {
  return animations_enabled;
}

void perform_without_animation(objc::Object, objc::Block<void()> actions) {
  const BOOL before = animations_enabled;
  animations_enabled = NO;
  actions();
  animations_enabled = before;
}

}  // namespace

const BlockAnimation* current_block_animation() {
  if (!animations_enabled || running_blocks.empty()) return nullptr;
  return &running_blocks.back();
}

CAMediaTimingFunction timing_function(UIViewAnimationOptions options) {
  switch (options & kCurveMask) {
    case UIViewAnimationOptionCurveEaseIn:
      return CAMediaTimingFunction::functionWithName("easeIn"_ns);
    case UIViewAnimationOptionCurveEaseOut:
      return CAMediaTimingFunction::functionWithName("easeOut"_ns);
    case UIViewAnimationOptionCurveLinear:
      return CAMediaTimingFunction::functionWithName("linear"_ns);
    case kKeyboardCurve:
      // Starts at once and arrives gently, like a spring that does not swing.
      return CAMediaTimingFunction::functionWithControlPoints(0.38f, 0.7f, 0.125f, 1);
    default:
      return CAMediaTimingFunction::functionWithName("easeInEaseOut"_ns);
  }
}

void export_block_animation() {
  const objc::Class of_class = objc::class_of(objc::Object(UIView::cls()).id());
  objc::add_method<&animate_plainly>(of_class, "animateWithDuration:animations:");
  objc::add_method<&animate_with_completion>(of_class,
                                             "animateWithDuration:animations:completion:");
  objc::add_method<&animate_with_options>(
      of_class, "animateWithDuration:delay:options:animations:completion:");
  objc::add_method<&animate_with_spring>(
      of_class,
      "animateWithDuration:delay:usingSpringWithDamping:initialSpringVelocity:options:"
      "animations:completion:");
  objc::add_method<&set_animations_enabled>(of_class, "setAnimationsEnabled:");
  objc::add_method<&are_animations_enabled>(of_class, "areAnimationsEnabled");
  objc::add_method<&perform_without_animation>(of_class, "performWithoutAnimation:");
}

}  // namespace host::uikit
