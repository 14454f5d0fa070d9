#include <algorithm>
#include <limits>

#include "host/quartzcore/animations/animation_delegate.h"
#include "host/quartzcore/animations/media_time.h"
#include "host/quartzcore/animations/transaction.h"
#include "host/quartzcore/animations/value_objects.h"
#include "host/quartzcore/layer.h"
#include "host/quartzcore/layer_service.h"
#include "platform/Foundation/NSNull.h"
#include "platform/QuartzCore/CABasicAnimation.h"

namespace host::quartzcore {
namespace {

std::string text_of(NSString string) {
  return string ? string.UTF8String() : "";
}

bool answers(objc::Object object, objc::Sel selector) {
  return object && objc::cast<NSObject>(object).respondsToSelector(selector);
}

}  // namespace

objc::Ref<objc::Object> Layer::action_before_change(NSString key) const {
  if (current_actions() == Actions::Disabled) return {};
  return objc::Ref<objc::Object>::retain(self.actionForKey(key));
}

void Layer::run_action(const objc::Ref<objc::Object>& action, NSString key) const {
  if (!action) return;
  objc::send<>(action.get(), "runActionForKey:object:arguments:"_sel, key, objc::Object(self),
               objc::Object());
}

objc::Object Layer::action_for_key(NSString key) const {
  if (answers(delegate_, "actionForLayer:forKey:"_sel)) {
    const auto action =
        objc::send<objc::Object>(delegate_, "actionForLayer:forKey:"_sel, self, key);
    if (action)
      return objc::cast<NSObject>(action).isKindOfClass(NSNull::cls()) ? objc::Object() : action;
  }
  return default_action(key);
}

// Only what is in a tree has been seen, so only that can be seen to change.
objc::Object Layer::default_action(NSString key) const {
  if (!superlayer_ || current_animation_duration() <= 0) return nil;
  const std::string path = text_of(key);
  if (!layer_property(path) && !(drawing_ && drawing_->model_value(path))) return nil;
  const CABasicAnimation animation = CABasicAnimation::animationWithKeyPath(key);
  animation.setFromValue(object_from_value(current_value(path)));
  animation.setDuration(current_animation_duration());
  const CAMediaTimingFunction chosen = current_timing_function();
  animation.setTimingFunction(chosen ? chosen
                                     : CAMediaTimingFunction::functionWithName("default"_ns));
  return animation;
}

LayerProperties Layer::present(double time) const {
  LayerProperties presented = properties_;
  if (!animations_.empty()) apply_animations(animations_, time, layer_property, presented);
  if (drawing_) drawing_->present(animations_, time);
  return presented;
}

bool Layer::is_scaling(double time) const {
  return std::any_of(animations_.begin(), animations_.end(), [time](const auto& animation) {
    return !animation.is_over(time) && (animation.key_path.starts_with("bounds") ||
                                        animation.key_path.starts_with("transform"));
  });
}

Value Layer::current_value(std::string_view key_path) const {
  if (const auto* access = layer_property(key_path)) return access->read(present(media_time()));
  if (drawing_) return drawing_->model_value(key_path).value_or(Value());
  return {};
}

void Layer::add_animation(CAAnimation animation, NSString key) {
  if (!animation) return;
  const auto copy = objc::Ref<CAAnimation>::adopt(objc::send<CAAnimation>(animation, "copy"_sel));
  if (key) self.removeAnimationForKey(key);
  RunningAnimation running =
      prepare_animation(copy, text_of(key), media_time(), current_animation_duration());
  take(std::move(running));
}

void Layer::run(RunningAnimation&& animation) {
  if (!animations_.empty())
    self.removeAnimationForKey(NSString::stringWithUTF8String(animation.key.c_str()));
  take(std::move(animation));
}

void Layer::take(RunningAnimation&& animation) {
  animation.group = current_group();
  animations_.push_back(std::move(animation));
  if (may_move()) forget_reach();
  note_animated_layer(self);
  note_layer_change();
}

bool Layer::start_animations(std::vector<RunningAnimation>& heard) {
  bool waits = false;
  for (RunningAnimation& animation : animations_) {
    if (animation.has_started) continue;
    if (animation.begin > media_time()) {
      waits = true;
      continue;
    }
    animation.has_started = true;
    if (hears_of_start(animation)) heard.push_back(animation);
  }
  return waits;
}

void Layer::advance_animations(double time) {
  std::vector<RunningAnimation> heard;
  start_animations(heard);
  tell_starts(heard);
  std::vector<RunningAnimation> ended;
  bool moved = false;
  for (std::size_t i = 0; i < animations_.size();) {
    RunningAnimation& animation = animations_[i];
    if (animation.has_stopped || !animation.is_over(time)) {
      ++i;
      continue;
    }
    moved |= moves(animation);
    if (animation.removed_on_completion) {
      ended.push_back(std::move(animation));
      animations_.erase(animations_.begin() + static_cast<std::ptrdiff_t>(i));
    } else {
      ended.push_back(animation);
      animation.has_stopped = true;
      animation.group.reset();
      ++i;
    }
  }
  if (ended.empty()) return;
  if (moved) forget_reach();
  note_layer_change();
  for (RunningAnimation& animation : ended)
    stop_animation(animation, YES, false);
}

bool Layer::wants_frames() const {
  return std::any_of(animations_.begin(), animations_.end(),
                     [](const auto& animation) { return !animation.has_stopped; });
}

double Layer::next_animation_end() const {
  double end = std::numeric_limits<double>::infinity();
  for (const RunningAnimation& animation : animations_) {
    if (!animation.has_stopped) end = std::min(end, animation.end());
  }
  return end;
}

void Layer::remove_animation_for_key(NSString key) {
  const std::string wanted = text_of(key);
  for (auto& animation : animations_) {
    if (animation.key == wanted) stop_animation(animation, animation.is_over(media_time()), true);
  }
  if (std::erase_if(animations_, [&](const auto& animation) { return animation.key == wanted; })) {
    forget_reach();
    note_animations_changed();
    note_layer_change();
  }
}

void Layer::remove_all_animations() {
  for (auto& animation : animations_)
    stop_animation(animation, animation.is_over(media_time()), true);
  animations_.clear();
  forget_reach();
  note_animations_changed();
  note_layer_change();
}

CAAnimation Layer::animation_for_key(NSString key) {
  const std::string wanted = text_of(key);
  for (auto& animation : animations_) {
    if (animation.key != wanted) continue;
    if (!animation.object) animation.object.reset(make_animation_object(animation));
    return animation.object.get();
  }
  return nil;
}

NSArray Layer::animation_keys() const {
  if (animations_.empty()) return nil;
  const NSMutableArray keys = NSMutableArray::array();
  for (const auto& animation : animations_) {
    if (!animation.key.empty())
      keys.addObject(NSString::stringWithUTF8String(animation.key.c_str()));
  }
  return keys;
}

CALayer Layer::presentation_layer() const {
  const auto copy = objc::send<CALayer>(
      objc::send<CALayer>(objc::Object(self.classOf()), "alloc"_sel), "init"_sel);
  Layer& shown = objc::state_of<Layer>(copy);
  shown.properties_ = present(media_time());
  shown.background_color_ = background_pattern()
                                ? background_color_
                                : objc::Ref<CGColorObject>::adopt(objc::cast<CGColorObject>(
                                      object_of(make_color(shown.properties_.background_color))));
  shown.hidden_ = hidden_;
  shown.masks_to_bounds_ = masks_to_bounds_;
  shown.contents_ = contents_;
  shown.image_ = image_;
  shown.contents_scale_ = contents_scale_;
  shown.gravity_ = gravity_;
  shown.model_layer_ = self;
  return copy.autorelease();
}

CALayer Layer::model_layer() const {
  return model_layer_ ? model_layer_ : self;
}

}  // namespace host::quartzcore
