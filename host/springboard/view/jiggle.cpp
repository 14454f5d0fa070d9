#include "host/springboard/view/jiggle.h"

#include <cmath>

#include "platform/Foundation/NSValue.h"
#include "platform/QuartzCore/CABasicAnimation.h"

namespace host::springboard {
namespace {

constexpr double kAngle = 0.035;
constexpr double kLift = 0.4;
constexpr double kSwing = 0.13;
constexpr double kBob = 0.15;
constexpr std::size_t kPhases = 4;

void add_swing(CALayer layer, NSString path, double extent, double duration, double phase) {
  const auto swing = CABasicAnimation::animationWithKeyPath(path);
  swing.setFromValue(NSNumber::numberWithDouble(-extent));
  swing.setToValue(NSNumber::numberWithDouble(extent));
  swing.setDuration(duration);
  swing.setTimeOffset(phase * duration);
  swing.setAutoreverses(YES);
  swing.setRepeatCount(HUGE_VALF);
  layer.addAnimation(swing, path);
}

}  // namespace

void start_jiggle(CALayer layer, std::size_t phase) {
  const double share = static_cast<double>(phase % kPhases) / kPhases * 2;
  add_swing(layer, "transform.rotation.z"_ns, kAngle, kSwing, share);
  add_swing(layer, "transform.translation.y"_ns, kLift, kBob, share);
}

void stop_jiggle(CALayer layer) {
  layer.removeAnimationForKey("transform.rotation.z"_ns);
  layer.removeAnimationForKey("transform.translation.y"_ns);
}

}  // namespace host::springboard
