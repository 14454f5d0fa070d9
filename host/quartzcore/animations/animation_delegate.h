#pragma once

#include <vector>

#include "host/quartzcore/animations/running_animation.h"

namespace host::quartzcore {

// Notifies the delegates of animations. A delegate may do anything to the layer, so the layer is
// not accessed afterwards.

bool observes_start(const RunningAnimation& animation);
/// Notifies the delegates that implement it that their animations have started.
void notify_starts(const std::vector<RunningAnimation>& started);
enum class Notify { AtOnce, NextTurn };
/// Ends the animation and notifies its delegate. Idempotent.
void stop_animation(RunningAnimation& animation, BOOL finished, Notify when);

}  // namespace host::quartzcore
