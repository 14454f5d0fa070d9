#include "host/uikit/view/animation_action.h"

#include <cmath>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "host/quartzcore/layers/layer.h"
#include "host/runtime/run_loop.h"
#include "host/uikit/view/animation_run.h"
#include "host/uikit/view/block_animation.h"
#include "host/uikit/view/spring_curve.h"
#include "host/uikit/view/view.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/QuartzCore/CABasicAnimation.h"
#include "platform/QuartzCore/CAKeyframeAnimation.h"
#include "platform/QuartzCore/CAValue.h"

namespace host::uikit {
namespace {

constexpr double kSpringSamplesPerSecond = 60;

struct UIViewAnimationAction
    : objc::Bound<UIViewAnimationAction, "_UIViewAnimationAction", NSObject> {};

// Geometry is animated additively: a change during a movement bends the path instead of cutting it
// off. Every other property restarts from its old value.
using OldValue =
    std::variant<CGPoint, CGRect, std::unique_ptr<CATransform3D>, objc::Ref<objc::Object>, double>;

CGPoint scaled(CGPoint point, double by) {
  return {point.x * by, point.y * by};
}

CGRect scaled(CGRect rect, double by) {
  return {rect.origin.x * by, rect.origin.y * by, rect.size.width * by, rect.size.height * by};
}

objc::Object boxed(CGPoint point) {
  return CAValue::valueWithCGPoint(point);
}
objc::Object boxed(CGRect rect) {
  return CAValue::valueWithCGRect(rect);
}

/// The two ends of a fade. Views that fade together mostly fade between the same two values, and
/// share them then.
std::shared_ptr<const quartzcore::AnimatedValues> fade_between(double from, double to) {
  static std::shared_ptr<const quartzcore::AnimatedValues> last;
  const auto is_the_same = [&] {
    return std::get<double>(*last->from) == from && std::get<double>(*last->to) == to;
  };
  if (!last || !is_the_same()) {
    auto made = std::make_shared<quartzcore::AnimatedValues>();
    made->from = from;
    made->to = to;
    last = std::move(made);
  }
  return last;
}

/// Returns whether no override observes the animations added to this layer.
bool inherits_add_animation(CALayer layer) {
  const objc::Sel selector = "addAnimation:forKey:"_sel;
  static const objc::Imp plain =
      method_getImplementation(class_getInstanceMethod(CALayer::cls(), selector));
  return objc_msg_lookup(layer.id(), selector) == plain;
}

template <class Geometry>
CAPropertyAnimation make_offset_animation(NSString key, Geometry offset,
                                          const BlockAnimation& asked) {
  if (asked.spring_damping <= 0) {
    const auto animation = CABasicAnimation::animationWithKeyPath(key);
    animation.setFromValue(boxed(offset));
    animation.setToValue(boxed(Geometry{}));
    return animation;
  }
  const SpringCurve spring{asked.duration, asked.spring_damping, asked.spring_velocity};
  const int count = static_cast<int>(std::ceil(asked.duration * kSpringSamplesPerSecond)) + 1;
  std::vector<objc::Object> values;
  for (int i = 0; i < count; ++i) {
    const double time = asked.duration * i / (count - 1);
    values.push_back(boxed(scaled(offset, spring.remaining(time))));
  }
  const auto animation = CAKeyframeAnimation::animationWithKeyPath(key);
  animation.setValues(NSArray::arrayWithObjects(values.data(), values.size()));
  return animation;
}

/// The characters of a property's name. `opacity`, which changes by the thousand, is compared by
/// identity: converting it would take as long as everything else.
std::string_view characters_of(NSString key) {
  return key == "opacity"_ns ? "opacity" : key.UTF8String();
}

}  // namespace

/// Runs once, for one change of one property, and is then told when its animation ends.
class AnimationAction : public objc::Implementation<AnimationAction, UIViewAnimationAction> {
 public:
  explicit AnimationAction(UIViewAnimationAction owner) : Implementation(owner) {}

  void prepare(UIView view, OldValue old_value, const BlockAnimation& asked) {
    view_.reset(view);
    old_value_ = std::move(old_value);
    asked_ = asked;
  }

  /// For fades out of sight. They have no animation, only a duration.
  void prepare_unseen(const BlockAnimation& asked) {
    asked_ = asked;
    is_unseen_ = true;
  }

  void run_action(NSString key, objc::Object object, NSDictionary) {
    if (is_unseen_) return asked_.run->unseen_animation_added(asked_.delay + fade_duration());
    const CALayer layer = objc::cast<CALayer>(object);
    const auto* opacity = std::get_if<double>(&old_value_);
    if (opacity && inherits_add_animation(layer)) return fade(layer, *opacity);
    const CAPropertyAnimation animation = make_animation(layer, key);
    if (!animation) return;
    time(animation);
    animation.setDelegate(self);
    begin();
    layer.addAnimation(animation, animation.isAdditive() ? free_key(layer, key) : key);
  }

  void animation_did_stop(CAAnimation, BOOL finished) {
    if (!asked_.run) return;
    if (blocks_touches()) objc::state_of<View>(view_.get()).end_untouchable_animation();
    const auto run = std::exchange(asked_.run, nullptr);
    view_.reset();
    run->animation_stopped(finished);
  }

 private:
  void begin() {
    asked_.run->animation_added();
    if (blocks_touches()) objc::state_of<View>(view_.get()).begin_untouchable_animation();
  }

  // Whole screens of views fade in one block, so this avoids creating objects.
  void fade(CALayer layer, double from) {
    const double to = layer.opacity();
    if (from == to) return;
    quartzcore::RunningAnimation animation;
    animation.key = animation.key_path = "opacity";
    animation.values = fade_between(from, to);
    animation.begin = RunLoop::main().now() + asked_.delay;
    animation.fills_backwards = asked_.delay > 0;
    animation.duration = asked_.duration;
    animation.curve = asked_.curve;
    animation.autoreverses = asked_.has(UIViewAnimationOptionAutoreverse);
    if (asked_.has(UIViewAnimationOptionRepeat))
      animation.repeat_count = std::numeric_limits<double>::infinity();
    animation.listener.reset(self);
    begin();
    quartzcore::layer_of(layer).run(std::move(animation));
  }

  double fade_duration() const {
    return asked_.has(UIViewAnimationOptionAutoreverse) ? 2 * asked_.duration : asked_.duration;
  }

  bool blocks_touches() const { return !asked_.has(UIViewAnimationOptionAllowUserInteraction); }

  /// Returns nil when the property did not change.
  CAPropertyAnimation make_animation(CALayer layer, NSString key) const {
    CAPropertyAnimation animation;
    if (const auto* point = std::get_if<CGPoint>(&old_value_)) {
      const CGPoint now = layer.position();
      if (now == *point) return nil;
      animation = make_offset_animation(key, CGPoint{point->x - now.x, point->y - now.y}, asked_);
    } else if (const auto* rect = std::get_if<CGRect>(&old_value_)) {
      const CGRect now = layer.bounds();
      if (now == *rect) return nil;
      animation = make_offset_animation(
          key,
          CGRect(rect->origin.x - now.origin.x, rect->origin.y - now.origin.y,
                 rect->size.width - now.size.width, rect->size.height - now.size.height),
          asked_);
    } else if (const auto* transform = std::get_if<std::unique_ptr<CATransform3D>>(&old_value_)) {
      return make_transform_animation(layer, key, **transform);
    } else if (const auto* opacity = std::get_if<double>(&old_value_)) {
      return make_replacing_animation(layer, key, NSNumber::numberWithDouble(*opacity));
    } else {
      return make_replacing_animation(layer, key, std::get<3>(old_value_).get());
    }
    animation.setAdditive(YES);
    return animation;
  }

  CAPropertyAnimation make_transform_animation(CALayer layer, NSString key,
                                               CATransform3D old) const {
    const CATransform3D now = layer.transform();
    if (now == old) return nil;
    const auto animation = CABasicAnimation::animationWithKeyPath(key);
    // A transform that flattens to nothing has no inverse to add to: it is animated as it is.
    if (now.m11 * now.m22 == now.m12 * now.m21) {
      animation.setFromValue(CAValue::valueWithCATransform3D(old));
      animation.setToValue(CAValue::valueWithCATransform3D(now));
      return animation;
    }
    const CATransform3D offset = CATransform3DConcat(old, CATransform3DInvert(now));
    animation.setFromValue(CAValue::valueWithCATransform3D(offset));
    animation.setToValue(CAValue::valueWithCATransform3D(CATransform3DIdentity));
    animation.setAdditive(YES);
    return animation;
  }

  static CAPropertyAnimation make_replacing_animation(CALayer layer, NSString key,
                                                      objc::Object old) {
    const objc::Object now = layer.valueForKeyPath(key);
    if (now == old || objc::cast<NSObject>(now).isEqual(old)) return nil;
    const auto animation = CABasicAnimation::animationWithKeyPath(key);
    animation.setFromValue(old);
    animation.setToValue(now);
    return animation;
  }

  void time(CAPropertyAnimation animation) const {
    animation.setDuration(asked_.duration);
    animation.setTimingFunction(asked_.spring_damping > 0
                                    ? CAMediaTimingFunction::functionWithName("linear"_ns)
                                    : timing_function(asked_.options));
    if (asked_.delay > 0) {
      animation.setBeginTime(CACurrentMediaTime() + asked_.delay);
      animation.setFillMode(kCAFillModeBackwards());
    }
    if (asked_.has(UIViewAnimationOptionRepeat)) animation.setRepeatCount(HUGE_VALF);
    if (asked_.has(UIViewAnimationOptionAutoreverse)) animation.setAutoreverses(YES);
  }

  static NSString free_key(CALayer layer, NSString key) {
    const std::string base = key.UTF8String();
    NSString free = key;
    for (int number = 2; layer.animationForKey(free); ++number)
      free = NSString::stringWithUTF8String((base + "-" + std::to_string(number)).c_str());
    return free;
  }

  objc::Ref<UIView> view_;
  OldValue old_value_;
  BlockAnimation asked_;
  bool is_unseen_ = false;
};

namespace {

/// Returns whether a fade of the layer needs no animation: nothing of it can be seen before its
/// end.
bool fades_unseen(CALayer layer, const BlockAnimation& asked) {
  return !asked.has(UIViewAnimationOptionRepeat) && inherits_add_animation(layer) &&
         quartzcore::layer_of(layer).reach.is_far_away();
}

// Of thousands of tiles that fade at once, the screen shows a few; the others share one action.
objc::Object unseen_action(const BlockAnimation& asked) {
  objc::Ref<objc::Object>& shared = asked.run->unseen_action;
  if (!shared) {
    const auto action = UIViewAnimationAction::alloc().init();
    shared = objc::Ref<objc::Object>::adopt(action);
    objc::state_of<AnimationAction>(action).prepare_unseen(asked);
  }
  return shared.get();
}

}  // namespace

objc::Object make_animation_action(UIView view, CALayer layer, NSString key) {
  const BlockAnimation* asked = current_block_animation();
  if (!asked || asked->duration <= 0) return nil;
  const std::string_view name = characters_of(key);
  if (name == "opacity" && fades_unseen(layer, *asked)) return unseen_action(*asked);
  OldValue old_value;
  if (name == "position") {
    old_value = layer.position();
  } else if (name == "bounds") {
    old_value = layer.bounds();
  } else if (name == "transform") {
    old_value = std::make_unique<CATransform3D>(layer.transform());
  } else if (name == "opacity" || name == "backgroundColor") {
    const bool from_screen = asked->has(UIViewAnimationOptionBeginFromCurrentState);
    const CALayer presented = from_screen ? layer.presentationLayer() : CALayer();
    const CALayer shown = presented ? presented : layer;
    if (name == "opacity") {
      old_value = static_cast<double>(shown.opacity());
    } else {
      old_value = objc::Ref<objc::Object>::retain(shown.valueForKeyPath(key));
    }
  } else {
    return nil;
  }
  const auto action = UIViewAnimationAction::alloc().init().autorelease();
  objc::state_of<AnimationAction>(action).prepare(view, std::move(old_value), *asked);
  return action;
}

void export_animation_action() {
  objc::ClassBuilder("_UIViewAnimationAction", "NSObject")
      .state<AnimationAction>()
      .method<&AnimationAction::run_action>("runActionForKey:object:arguments:")
      .method<&AnimationAction::animation_did_stop>("animationDidStop:finished:")
      .finish();
}

}  // namespace host::uikit
