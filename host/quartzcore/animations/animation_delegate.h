#pragma once

#include <vector>

#include "host/quartzcore/animations/running_animation.h"

namespace host::quartzcore {

// What the delegate of an animation hears. It may do anything to the layer, so nothing of that is
// touched afterwards.

bool hears_of_start(const RunningAnimation& animation);
/// Tells the delegates that answer that their animations have started.
void tell_starts(const std::vector<RunningAnimation>& started);
enum class Telling { AtOnce, InTheNextTurn };
/// Ends the animation, once, and tells its delegate.
void stop_animation(RunningAnimation& animation, BOOL finished, Telling when);

}  // namespace host::quartzcore
