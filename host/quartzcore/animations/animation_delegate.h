#pragma once

#include <vector>

#include "host/quartzcore/animations/running_animation.h"

namespace host::quartzcore {

// What the delegate of an animation hears. It may do anything to the layer, so nothing of that is
// touched afterwards.

bool hears_of_start(const RunningAnimation& animation);
/// Tells the delegates that answer that their animations have started.
void tell_starts(const std::vector<RunningAnimation>& started);
/// Ends the animation, once, and tells its delegate, now or in the next turn of the run loop.
void stop_animation(RunningAnimation& animation, BOOL finished, bool next_turn);

}  // namespace host::quartzcore
