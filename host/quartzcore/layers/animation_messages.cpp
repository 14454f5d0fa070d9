#include "host/quartzcore/animations/delegate.h"
#include "host/quartzcore/animations/media_time.h"
#include "host/quartzcore/animations/transaction.h"
#include "host/quartzcore/animations/value_objects.h"
#include "host/quartzcore/layers/animated_layers.h"
#include "host/quartzcore/layers/layer.h"
#include "host/quartzcore/layers/layer_changes.h"
#include "host/quartzcore/layers/layer_messages.h"
#include "platform/Foundation/NSNull.h"
#include "platform/QuartzCore/CABasicAnimation.h"

namespace host::quartzcore {
namespace {

std::string text_of(NSString string) {
  return string ? string.UTF8String() : "";
}

bool has_property(const Layer& layer, std::string_view key_path) {
  return layer_property(key_path) || (layer.drawing && layer.drawing->model_value(key_path));
}

Value current_value(const Layer& layer, std::string_view key_path) {
  if (const auto* access = layer_property(key_path))
    return access->read(layer.present(media_time()));
  if (layer.drawing) return layer.drawing->model_value(key_path).value_or(Value());
  return {};
}

// Only a layer in a tree has been visible, so only its changes are animated.
objc::Object default_action(const Layer& layer, NSString key) {
  if (!layer.tree.superlayer || current_animation_duration() <= 0) return nil;
  const std::string path = text_of(key);
  if (!has_property(layer, path)) return nil;
  const CABasicAnimation animation = CABasicAnimation::animationWithKeyPath(key);
  animation.setFromValue(object_from_value(current_value(layer, path)));
  animation.setDuration(current_animation_duration());
  const CAMediaTimingFunction chosen = current_timing_function();
  animation.setTimingFunction(chosen ? chosen
                                     : CAMediaTimingFunction::functionWithName("default"_ns));
  return animation;
}

objc::Object action_for_key(CALayer self, NSString key) {
  const Layer& layer = layer_of(self);
  if (answers(layer.delegate, "actionForLayer:forKey:"_sel)) {
    const auto action =
        objc::send<objc::Object>(layer.delegate, "actionForLayer:forKey:"_sel, self, key);
    if (action) return action == NSNull::null() ? objc::Object() : action;
  }
  return default_action(layer, key);
}

void note_animations_taken(Layer& layer) {
  layer.reach.forget();
  animated_layers().note_news();
  note_layer_change();
}

void add_animation(CALayer self, CAAnimation animation, NSString key) {
  if (!animation) return;
  const auto copy = objc::Ref<CAAnimation>::adopt(objc::send<CAAnimation>(animation, "copy"_sel));
  if (key) self.removeAnimationForKey(key);
  layer_of(self).add_animation(
      prepare_animation(copy, text_of(key), media_time(), current_animation_duration()));
}

void remove_animation_for_key(CALayer self, NSString key) {
  Layer& layer = layer_of(self);
  if (layer.animations.remove(text_of(key), media_time())) note_animations_taken(layer);
}

void remove_all_animations(CALayer self) {
  layer_of(self).animations.remove_all(media_time());
  note_animations_taken(layer_of(self));
}

CAAnimation animation_for_key(CALayer self, NSString key) {
  RunningAnimation* const animation = layer_of(self).animations.find(text_of(key));
  if (!animation) return nil;
  if (!animation->object) animation->object.reset(make_animation_object(*animation));
  return animation->object.get();
}

NSArray animation_keys(CALayer self) {
  const LayerAnimations& animations = layer_of(self).animations;
  if (animations.empty()) return nil;
  const NSMutableArray keys = NSMutableArray::array();
  for (const auto& animation : animations.all()) {
    if (!animation.key.empty())
      keys.addObject(NSString::stringWithUTF8String(animation.key.c_str()));
  }
  return keys;
}

CALayer presentation_layer(CALayer self) {
  const auto copy = objc::send<CALayer>(
      objc::send<CALayer>(objc::Object(self.classOf()), "alloc"_sel), "init"_sel);
  const Layer& layer = layer_of(self);
  LayerModel& shown = layer_of(copy).model;
  shown.properties = layer.present(media_time());
  shown.background_color = layer.model.background_pattern()
                               ? layer.model.background_color
                               : KeptColor(shown.properties.background_color);
  shown.hidden = layer.model.hidden;
  shown.masks_to_bounds = layer.model.masks_to_bounds;
  shown.contents = layer.model.contents;
  layer_of(copy).model_layer = self;
  return copy.autorelease();
}

CALayer model_layer(CALayer self) {
  const CALayer model = layer_of(self).model_layer;
  return model ? model : self;
}

}  // namespace

void add_animation_messages(objc::ClassBuilder& builder) {
  builder.method<&action_for_key>("actionForKey:")
      .method<&add_animation>("addAnimation:forKey:")
      .method<&remove_animation_for_key>("removeAnimationForKey:")
      .method<&remove_all_animations>("removeAllAnimations")
      .method<&animation_for_key>("animationForKey:")
      .method<&animation_keys>("animationKeys")
      .method<&presentation_layer>("presentationLayer")
      .method<&model_layer>("modelLayer");
}

}  // namespace host::quartzcore
