#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/UIKit/UITouch.h"

namespace host::uikit {

/// Sees every finger before any window does, for gestures that begin at the screen's edge, whatever
/// is shown there. Points are in screen coordinates, timestamps in seconds of the clock.
class SystemGestures {
 public:
  /// Who owns the finger from now on. A claimed finger leaves its view, which is told that the
  /// touch is cancelled, and no window sees it again; the gestures follow it to its end. When other
  /// gestures claim it later, the previous owner sees it cancelled.
  enum class Claim { Windows, System };

  virtual ~SystemGestures() = default;
  virtual Claim touch(int finger, UITouchPhase phase, CGPoint screen_point, double timestamp) = 0;
};

/// All registered gestures see every finger, in the order in which they were added. Not owned.
void add_system_gestures(SystemGestures* gestures);
void remove_system_gestures(SystemGestures* gestures);

/// Shows one change of a finger to all of them. Returns `System` when one of them claims it.
SystemGestures::Claim system_claim(int finger, UITouchPhase phase, CGPoint screen_point,
                                   double timestamp);

}  // namespace host::uikit
