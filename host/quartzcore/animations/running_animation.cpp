#include "host/quartzcore/animations/running_animation.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>

#include "host/quartzcore/animations/animation.h"
#include "host/quartzcore/animations/timing_function.h"
#include "host/quartzcore/animations/value_objects.h"
#include "platform/QuartzCore/CABasicAnimation.h"

namespace host::quartzcore {
namespace {

constexpr double kForever = std::numeric_limits<double>::infinity();
// More repetitions than this count as endless; the platform's HUGE_VALF is above it.
constexpr float kCountsAsForever = 1e20f;

std::string_view text_of(NSString string) {
  return string ? string.UTF8String() : "";
}

std::optional<double> element(const std::vector<double>& numbers, std::size_t index) {
  if (index >= numbers.size()) return std::nullopt;
  return numbers[index];
}

std::shared_ptr<const AnimatedValues> values_of(const AnimationDescription& from) {
  auto made = std::make_shared<AnimatedValues>();
  made->from = value_from_object(from.from.get());
  made->to = value_from_object(from.to.get());
  made->by = value_from_object(from.by.get());
  if (!from.values) return made;
  for (objc::Object value : from.values->of()) {
    if (const auto read = value_from_object(value)) made->row.push_back(*read);
  }
  if (!from.key_times) return made;
  if (const auto times = value_from_object(from.key_times.get()))
    if (const auto* numbers = std::get_if<std::vector<double>>(&*times)) made->key_times = *numbers;
  return made;
}

}  // namespace

RunningAnimation prepare_animation(objc::Ref<CAAnimation> animation, std::string key, double now,
                                   double default_duration) {
  const AnimationDescription& from = objc::state_of<Animation>(animation.get()).description;
  RunningAnimation running;
  running.key = std::move(key);
  running.key_path = text_of(from.key_path.get());
  running.begin = from.begin_time == 0 ? now : from.begin_time;
  running.duration = from.duration == 0 ? default_duration : from.duration;
  running.speed = from.speed;
  running.time_offset = from.time_offset;
  running.repeat_count = from.repeat_count == 0                  ? 1
                         : from.repeat_count >= kCountsAsForever ? kForever
                                                                 : from.repeat_count;
  running.autoreverses = from.autoreverses;
  const std::string_view fill = text_of(from.fill_mode.get());
  running.fills_backwards = fill == "backwards" || fill == "both";
  running.fills_forwards = fill == "forwards" || fill == "both";
  running.removed_on_completion = from.removed_on_completion;
  running.additive = from.additive;
  running.cumulative = from.cumulative;
  running.curve = curve_of(from.timing_function.get());
  running.values = values_of(from);
  running.object = std::move(animation);
  return running;
}

CAAnimation make_animation_object(const RunningAnimation& running) {
  const CABasicAnimation made = CABasicAnimation::animationWithKeyPath(
      NSString::stringWithUTF8String(running.key_path.c_str()));
  AnimationDescription& description = objc::state_of<Animation>(made).description;
  const auto& [from, to, by, row, key_times] = *running.values;
  if (from) description.from.reset(object_from_value(*from));
  if (to) description.to.reset(object_from_value(*to));
  description.begin_time = running.begin;
  description.duration = running.duration;
  description.repeat_count = static_cast<float>(running.repeat_count);
  description.autoreverses = running.autoreverses;
  const TimingCurve& c = running.curve;
  made.setTimingFunction(CAMediaTimingFunction::functionWithControlPoints(
      static_cast<float>(c.x1), static_cast<float>(c.y1), static_cast<float>(c.x2),
      static_cast<float>(c.y2)));
  if (running.fills_backwards) made.setFillMode(kCAFillModeBackwards());
  made.setDelegate(running.listener.get());
  return made;
}

double RunningAnimation::end() const {
  if (speed <= 0) return kForever;
  const double once = autoreverses ? 2 * duration : duration;
  const double active = once == 0 ? 0 : once * repeat_count;
  return begin + (active - time_offset) / speed - kTimeTolerance;
}

Value RunningAnimation::evaluate(double now, const Value& underlying) const {
  if (now < begin - kTimeTolerance && !fills_backwards) return underlying;
  const bool over = is_over(now);
  if (over && !fills_forwards && has_stopped) return underlying;
  const double once = autoreverses ? 2 * duration : duration;
  if (once <= 0) return over && !fills_forwards ? underlying : last_value(underlying);
  double time = std::max(0.0, (now - begin) * speed + time_offset);
  double iteration = std::floor(time / once);
  double within = time - iteration * once;
  if (over) {
    if (!fills_forwards) return underlying;
    // When over, it stays at the end of the last repetition, not at the start of another.
    iteration = std::max(0.0, std::ceil(repeat_count) - 1);
    within = (repeat_count - iteration) * once;
  }
  double fraction = within / duration;
  if (fraction > 1) fraction = autoreverses ? 2 - fraction : 1;
  Value value = at_fraction(curve.at(fraction), underlying);
  if (cumulative && iteration > 0) value = add(value, multiply(last_value(underlying), iteration));
  return additive ? add(underlying, value) : value;
}

Value RunningAnimation::at_fraction(double fraction, const Value& underlying) const {
  const auto& [from, to, by, row, key_times] = *values;
  const auto shaped = [&](const Value& value) {
    return shaped_like(underlying, value).value_or(underlying);
  };
  if (!row.empty()) {
    const std::size_t last = row.size() - 1;
    const auto time_of = [&](std::size_t i) {
      return element(key_times, i)
          .value_or(last == 0 ? 0 : static_cast<double>(i) / static_cast<double>(last));
    };
    std::size_t next = 1;
    while (next < last && time_of(next) <= fraction)
      ++next;
    if (last == 0) return shaped(row[0]);
    const double start = time_of(next - 1);
    const double length = time_of(next) - start;
    const double part = length <= 0 ? 1 : std::clamp((fraction - start) / length, 0.0, 1.0);
    return interpolate(shaped(row[next - 1]), shaped(row[next]), part);
  }
  // An end that an additive animation does not specify means no difference.
  const Value rest = additive ? subtract(underlying, underlying) : underlying;
  const Value start = from ? shaped(*from) : by && to ? subtract(shaped(*to), shaped(*by)) : rest;
  const Value finish = to ? shaped(*to) : by ? add(start, shaped(*by)) : rest;
  return interpolate(start, finish, fraction);
}

}  // namespace host::quartzcore
