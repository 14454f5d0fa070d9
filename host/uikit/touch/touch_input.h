#pragma once

#include <map>
#include <optional>

#include "host/uikit/geometry/window_list.h"
#include "objc/ref.h"
#include "platform/UIKit/UIGestureRecognizer.h"
#include "platform/UIKit/UITouch.h"

namespace host::uikit {

/// The entry point for fingers: creates their touches, finds the window and view on which they
/// land, and sends the event. Locations are in points from the screen's top left corner,
/// timestamps in seconds of the clock.
class TouchInput {
 public:
  TouchInput();
  ~TouchInput();
  TouchInput(const TouchInput&) = delete;
  TouchInput& operator=(const TouchInput&) = delete;

  void began(int finger, CGPoint screen_point, double timestamp);
  void moved(int finger, CGPoint screen_point, double timestamp);
  void ended(int finger, CGPoint screen_point, double timestamp);
  /// The source of the finger has lost it: it is no longer on the screen.
  void cancelled(int finger, CGPoint screen_point, double timestamp);
  void cancel_all(double timestamp);

  enum class Reach { Windows, All };
  /// Cancels the touches of fingers that stay on the screen, and ignores these until they lift.
  void take_away(Reach reach, double timestamp);
  /// Cancels the touches in the view, except those that `but_for` sees. System gestures keep seeing
  /// these fingers; windows do not until they land again.
  void take_away_from(UIView view, UIGestureRecognizer but_for, double timestamp);

 private:
  /// The owner of a finger. Changes of a finger without an owner are ignored.
  enum class Owner { Windows, System, None };
  struct Finger {
    Owner owner = Owner::Windows;
    CGPoint point;
    /// Null when no view takes the finger, or no longer takes it.
    objc::Ref<UITouch> touch;
  };
  struct Tap {
    CGPoint point;
    double time = -1;
    NSUInteger count = 0;
  };

  /// Shows the change to the system gestures. Returns whether the finger still belongs to the
  /// windows afterwards.
  bool goes_to_windows(int finger, UITouchPhase phase, CGPoint screen_point, double timestamp);
  void land(int finger, CGPoint screen_point, double timestamp);
  void move(int finger, CGPoint screen_point, double timestamp);
  /// The finger has left the screen.
  void forget(int finger, UITouchPhase phase, double timestamp);
  void cancel(Finger& finger, double timestamp);
  void end(UITouch touch, UITouchPhase phase, double timestamp);
  NSUInteger count_tap(CGPoint point, double timestamp);
  void send(UITouch touch, double timestamp);

  /// Every finger on the screen.
  std::map<int, Finger> fingers_;
  /// The finger that the system gestures are seeing right now.
  std::optional<int> shown_;
  Tap last_tap_;
};

/// Returns what a finger would touch at this point of the screen, for a pointer that is no finger;
/// nothing while touches are disabled or ignored.
Hit hit_of_pointer(CGPoint screen_point);

/// Cancels every touch for its view and recognisers, which are told so. A finger that stays on the
/// screen is then ignored until it lifts, unless a system gesture has claimed it: that one keeps
/// it.
void cancel_every_touch();

/// Cancels the touches that are on the view or on anything in it, except those that `but_for` sees;
/// views and recognisers are told so. No view sees these fingers until they land again.
void cancel_touches_in(UIView view, UIGestureRecognizer but_for = nil);

/// Disabled, the screen feels no fingers. Those already on it are taken from all views, recognisers
/// and system gestures; a finger that stays until touches are enabled again is ignored until it
/// lifts.
void set_touches_enabled(bool enabled);

}  // namespace host::uikit
