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

/// In seconds. Frames and timers meet a due time only up to rounding.
inline constexpr double kTimeTolerance = 1e-9;

class TransactionGroup;
class Animation;

/// The values that an animation moves between: two ends, or a row of values, each with its time.
struct AnimatedValues {
  std::optional<Value> from, to, by;
  std::vector<Value> row;
  std::vector<double> key_times;
};

/// An animation added to a layer, prepared for evaluation at any time without sending messages. It
/// is kept small: a single block may animate whole screens of layers.
struct RunningAnimation {
  std::string key;
  std::string key_path;
  /// The layer's copy, which `animationForKey:` returns and the delegate receives. If the animation
  /// was not created from an object, it is null until it is first requested.
  objc::Ref<CAAnimation> object;
  /// When there is no object: receives `animationDidStop:finished:`, which it implements.
  objc::Ref<objc::Object> listener;

  double begin = 0;
  double duration = 0;
  double speed = 1;
  double time_offset = 0;
  /// The number of repetitions; infinity for an endless animation.
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
  /// The transaction's completion runs when the last of its animations releases this.
  std::shared_ptr<TransactionGroup> group;

  /// The clock time at which it is over; infinity if it never ends.
  double end() const;
  /// The run loop may wake slightly before the end; the animation must already count as over then.
  bool is_over(double now) const { return now + kTimeTolerance >= end(); }
  /// Returns the animated value; `underlying` is the property's value without the animation.
  /// Outside of its time and fill this is `underlying` itself.
  Value evaluate(double now, const Value& underlying) const;

 private:
  Value at_fraction(double fraction, const Value& underlying) const;
  Value last_value(const Value& underlying) const { return at_fraction(1, underlying); }
};

/// Returns an autoreleased animation object with the properties of one that was created without.
CAAnimation make_animation_object(const RunningAnimation& running);

/// Prepares `animation` (the layer's own copy) to run from `now`; `default_duration` replaces a
/// duration of 0.
RunningAnimation prepare_animation(objc::Ref<CAAnimation> animation, std::string key, double now,
                                   double default_duration);

}  // namespace host::quartzcore
