#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/UIKit/UITouch.h"

namespace host::uikit {

/// Sees every finger before any window does: gestures that begin at the screen's edge, whatever is
/// shown there. Points are of the screen, timestamps seconds of the clock.
class SystemGestures {
 public:
  /// Whose the finger is from now on. A finger that is taken leaves the view that it was on, which
  /// is told so, and comes to no window any more; the gestures see it to its end. When another
  /// takes it later, the one that had it is shown that it is cancelled.
  enum class Claim { Windows, System };

  virtual ~SystemGestures() = default;
  virtual Claim touch(int finger, UITouchPhase phase, CGPoint screen_point, double timestamp) = 0;
};

/// Each of them sees every finger, in the order of being added. Not owned.
void add_system_gestures(SystemGestures* gestures);
void remove_system_gestures(SystemGestures* gestures);

/// Shows all of them one change of a finger; does one of them take it?
SystemGestures::Claim system_claim(int finger, UITouchPhase phase, CGPoint screen_point,
                                   double timestamp);

}  // namespace host::uikit
