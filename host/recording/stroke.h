#pragma once

#include <span>
#include <vector>

#include "host/recording/fidelity.h"
#include "host/screen/input.h"

namespace host::recording {

/// A report of a finger.
struct Touch {
  int finger = 1;
  screen::TouchPhase phase = screen::TouchPhase::Began;
  CGPoint point;
  double time = 0;
};

/// One line of a script about a finger. A step that glides begins where and when the one before
/// ended; any other happens at its time.
struct Step {
  Touch touch;
  bool glides = false;
};

/// The few steps that have the effect of these reports, which are all of one finger.
std::vector<Step> steps_of(std::span<const Touch> touches, const Fidelity& fidelity);

}  // namespace host::recording
