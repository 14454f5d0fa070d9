#include "host/quartzcore/animations/animation.h"

#include "platform/QuartzCore/CALayer.h"

namespace host::quartzcore {
namespace {

template <class T>
struct FieldOf;
template <class T>
struct FieldOf<T AnimationDescription::*> {
  using Type = T;
};
template <class T>
struct ElementOf {
  using Type = T;
};
template <class T>
struct ElementOf<objc::Ref<T>> {
  using Type = T;
};

// Accessors of the description's fields. Objects are retained; booleans are passed as BOOL.
template <auto Field>
auto get(CAAnimation self) {
  const auto& value = objc::state_of<Animation>(self).description.*Field;
  using T = typename FieldOf<decltype(Field)>::Type;
  if constexpr (std::is_same_v<T, bool>) {
    return static_cast<BOOL>(value);
  } else if constexpr (requires { value.get(); }) {
    return value.get();
  } else {
    return value;
  }
}

template <auto Field>
void set(CAAnimation self,
         std::conditional_t<std::is_same_v<typename FieldOf<decltype(Field)>::Type, bool>, BOOL,
                            typename ElementOf<typename FieldOf<decltype(Field)>::Type>::Type>
             value) {
  auto& place = objc::state_of<Animation>(self).description.*Field;
  if constexpr (requires { place.reset(value); }) {
    place.reset(value);
  } else if constexpr (std::is_same_v<typename FieldOf<decltype(Field)>::Type, bool>) {
    place = value != NO;
  } else {
    place = value;
  }
}

CAAnimation make(objc::Object cls) {
  return objc::send<CAAnimation>(objc::send<objc::Object>(cls, "alloc"_sel), "init"_sel)
      .autorelease();
}

CAPropertyAnimation make_with_key_path(objc::Object cls, NSString path) {
  const auto made = objc::cast<CAPropertyAnimation>(make(cls));
  made.setKeyPath(path);
  return made;
}

using Description = AnimationDescription;

void export_base() {
  objc::ClassBuilder("CAAnimation", "NSObject")
      .state<Animation>()
      .class_method<&make>("animation")
      .method<&get<&Description::begin_time>>("beginTime")
      .method<&set<&Description::begin_time>>("setBeginTime:")
      .method<&get<&Description::duration>>("duration")
      .method<&set<&Description::duration>>("setDuration:")
      .method<&get<&Description::speed>>("speed")
      .method<&set<&Description::speed>>("setSpeed:")
      .method<&get<&Description::time_offset>>("timeOffset")
      .method<&set<&Description::time_offset>>("setTimeOffset:")
      .method<&get<&Description::repeat_count>>("repeatCount")
      .method<&set<&Description::repeat_count>>("setRepeatCount:")
      .method<&get<&Description::autoreverses>>("autoreverses")
      .method<&set<&Description::autoreverses>>("setAutoreverses:")
      .method<&get<&Description::fill_mode>>("fillMode")
      .method<&set<&Description::fill_mode>>("setFillMode:")
      .method<&get<&Description::removed_on_completion>>("isRemovedOnCompletion")
      .method<&set<&Description::removed_on_completion>>("setRemovedOnCompletion:")
      .method<&get<&Description::timing_function>>("timingFunction")
      .method<&set<&Description::timing_function>>("setTimingFunction:")
      .method<&get<&Description::delegate>>("delegate")
      .method<&set<&Description::delegate>>("setDelegate:")
      .method<&Animation::copy_with_zone>("copyWithZone:")
      .method<&Animation::run_action>("runActionForKey:object:arguments:")
      .method<&Animation::set_value_for_undefined_key>("setValue:forUndefinedKey:")
      .method<&Animation::value_for_undefined_key>("valueForUndefinedKey:")
      .finish();
}

void export_property_animations() {
  objc::ClassBuilder("CAPropertyAnimation", "CAAnimation")
      .class_method<&make_with_key_path>("animationWithKeyPath:")
      .method<&get<&Description::key_path>>("keyPath")
      .method<&set<&Description::key_path>>("setKeyPath:")
      .method<&get<&Description::additive>>("isAdditive")
      .method<&set<&Description::additive>>("setAdditive:")
      .method<&get<&Description::cumulative>>("isCumulative")
      .method<&set<&Description::cumulative>>("setCumulative:")
      .finish();
  objc::ClassBuilder("CABasicAnimation", "CAPropertyAnimation")
      .method<&get<&Description::from>>("fromValue")
      .method<&set<&Description::from>>("setFromValue:")
      .method<&get<&Description::to>>("toValue")
      .method<&set<&Description::to>>("setToValue:")
      .method<&get<&Description::by>>("byValue")
      .method<&set<&Description::by>>("setByValue:")
      .finish();
  objc::ClassBuilder("CAKeyframeAnimation", "CAPropertyAnimation")
      .method<&get<&Description::values>>("values")
      .method<&set<&Description::values>>("setValues:")
      .method<&get<&Description::key_times>>("keyTimes")
      .method<&set<&Description::key_times>>("setKeyTimes:")
      .finish();
}

}  // namespace

objc::Object Animation::copy_with_zone(void*) const {
  const objc::Object cls{self.classOf()};
  const auto copy = objc::send<CAAnimation>(objc::send<objc::Object>(cls, "alloc"_sel), "init"_sel);
  objc::state_of<Animation>(copy).description = description;
  return copy;
}

void Animation::run_action(NSString key, objc::Object layer, objc::Object) {
  objc::cast<CALayer>(layer).addAnimation(self, key);
}

void Animation::set_value_for_undefined_key(objc::Object value, NSString key) {
  description.extra[key.UTF8String()].reset(value);
}

objc::Object Animation::value_for_undefined_key(NSString key) const {
  const auto found = description.extra.find(key.UTF8String());
  return found == description.extra.end() ? objc::Object() : found->second.get();
}

void export_animations() {
  export_base();
  export_property_animations();
}

}  // namespace host::quartzcore
