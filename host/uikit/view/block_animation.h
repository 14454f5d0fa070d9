#pragma once

#include <memory>

#include "host/quartzcore/values/timing_curve.h"
#include "objc/ref.h"
#include "platform/UIKit/UIView.h"

namespace host::uikit {

class AnimationRun;

/// What the innermost animation block applies to every change made inside it.
struct BlockAnimation {
  double duration = 0;
  double delay = 0;
  UIViewAnimationOptions options = 0;
  /// 1 and above do not swing; 0 means no spring.
  double spring_damping = 0;
  double spring_velocity = 0;
  std::shared_ptr<AnimationRun> run = nullptr;
  /// The curve that results from options and spring, computed once for the block.
  quartzcore::TimingCurve curve = {};

  bool has(UIViewAnimationOptions option) const { return (options & option) != 0; }
};

/// Returns the animation block that is being run. Returns nullptr outside of every block, inside
/// `performWithoutAnimation:`, and while animations are disabled.
const BlockAnimation* current_block_animation();

/// Returns the curve that the options name; ease in and out unless they name another.
CAMediaTimingFunction timing_function(UIViewAnimationOptions options);

/// Adds the class methods of block animations to the view class.
void export_block_animation();

}  // namespace host::uikit
