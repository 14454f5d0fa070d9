#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/quartzcore/values/timing_curve.h"
#include "host/quartzcore/values/value.h"
#include "objc/ref.h"
#include "platform/QuartzCore/CAAnimation.h"

namespace host::quartzcore {

/// In seconds: frames and timers meet a due time only up to rounding.
inline constexpr double kTimeTolerance = 1e-9;

class TransactionGroup;
class Animation;

/// What an animation moves between: two ends, or a row of values each at its time.
struct AnimatedValues {
  std::optional<Value> from, to, by;
  std::vector<Value> row;
  std::vector<double> key_times;
};

/// An animation that a layer has taken, made ready for evaluation at any time without a message. It
/// is kept small: whole screens of layers are animated in one block.
struct RunningAnimation {
  std::string key;
  std::string key_path;
  /// The layer's copy: what `animationForKey:` and the delegate's messages give. Null until
  /// somebody asks for it where the animation was not made from an object.
  objc::Ref<CAAnimation> object;
  /// Where there is no object: hears of the stop by `animationDidStop:finished:`, which it answers.
  objc::Ref<objc::Object> listener;

  double begin = 0;
  double duration = 0;
  double speed = 1;
  double time_offset = 0;
  /// Repetitions; infinity for ever.
  double repeat_count = 1;
  bool autoreverses = false;
  bool fills_backwards = false;
  bool fills_forwards = false;
  bool removed_on_completion = true;
  bool additive = false;
  bool cumulative = false;
  TimingCurve curve;

  /// Never null.
  std::shared_ptr<const AnimatedValues> values;

  bool has_started = false;
  bool has_stopped = false;
  /// Lets the transaction's completion run when the last of its animations is gone.
  std::shared_ptr<TransactionGroup> group;

  /// The clock time at which it is over; infinity when never.
  double end() const;
  /// The run loop may wake for the end a little early, and must not find it pending then.
  bool is_over(double now) const { return now + kTimeTolerance >= end(); }
  /// What it makes of `underlying`, the property's value without it. Outside its time and fill
  /// that is `underlying` itself.
  Value evaluate(double now, const Value& underlying) const;

 private:
  Value at_fraction(double fraction, const Value& underlying) const;
  Value last_value(const Value& underlying) const { return at_fraction(1, underlying); }
};

/// An animation object that says the same as one that was made without; autoreleased.
CAAnimation make_animation_object(const RunningAnimation& running);

/// Makes `animation` (the layer's own copy) ready to run from `now`; `default_duration` stands in
/// for a duration of 0.
RunningAnimation prepare_animation(objc::Ref<CAAnimation> animation, std::string key, double now,
                                   double default_duration);

}  // namespace host::quartzcore
