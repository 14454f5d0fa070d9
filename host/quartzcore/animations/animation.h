#pragma once

#include <map>
#include <string>

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/QuartzCore/CABasicAnimation.h"
#include "platform/QuartzCore/CAKeyframeAnimation.h"

namespace host::quartzcore {

/// The properties of an animation. Shared by the classes below; copied when a layer adds it.
struct AnimationDescription {
  double begin_time = 0;
  double duration = 0;
  double time_offset = 0;
  float speed = 1;
  float repeat_count = 0;
  bool autoreverses = false;
  bool removed_on_completion = true;
  bool additive = false;
  bool cumulative = false;
  objc::Ref<NSString> fill_mode;
  objc::Ref<NSString> key_path;
  objc::Ref<CAMediaTimingFunction> timing_function;
  objc::Ref<objc::Object> delegate;
  objc::Ref<objc::Object> from, to, by;
  objc::Ref<NSArray> values, key_times;
  std::map<std::string, objc::Ref<objc::Object>> extra;
};

/// CAAnimation. The fields of its subclasses are here too, which makes a copy a single assignment.
class Animation : public objc::Implementation<Animation, CAAnimation> {
 public:
  explicit Animation(CAAnimation owner) : Implementation(owner) {}

  AnimationDescription description;

  objc::Object copy_with_zone(void* zone) const;
  /// The CAAction method: adds the animation to the layer under the key.
  void run_action(NSString key, objc::Object layer, objc::Object arguments);
  void set_value_for_undefined_key(objc::Object value, NSString key);
  objc::Object value_for_undefined_key(NSString key) const;
};

void export_animations();

}  // namespace host::quartzcore
