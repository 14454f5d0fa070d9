#pragma once

#include <map>
#include <optional>

#include "objc/ref.h"
#include "platform/UIKit/UIGestureRecognizer.h"
#include "platform/UIKit/UITouch.h"

namespace host::uikit {

/// Where fingers come in: makes touches of them, finds the window and the view that they land on,
/// and sends the event. Points are of the screen, in points from its top left corner; timestamps
/// are seconds of the clock.
class TouchInput {
 public:
  TouchInput();
  ~TouchInput();
  TouchInput(const TouchInput&) = delete;
  TouchInput& operator=(const TouchInput&) = delete;

  void began(int finger, CGPoint screen_point, double timestamp);
  void moved(int finger, CGPoint screen_point, double timestamp);
  void ended(int finger, CGPoint screen_point, double timestamp);
  /// Whoever reports the finger has lost it: it is not on the screen any more.
  void cancelled(int finger, CGPoint screen_point, double timestamp);
  void cancel_all(double timestamp);

  enum class Reach { Windows, Everybody };
  /// Cancels the touches of fingers that stay where they are, and ignores these until they lift.
  void take_away(Reach reach, double timestamp);
  /// Cancels the touches in the view that `but_for` does not see. Gestures of the system go on
  /// seeing their fingers; windows do not until these land anew.
  void take_away_from(UIView view, UIGestureRecognizer but_for, double timestamp);

 private:
  /// Whose a finger is. What it does as nobody's is ignored.
  enum class Owner { Windows, System, Nobody };
  struct Finger {
    Owner owner = Owner::Windows;
    CGPoint point;
    /// Null where no view takes it, or not any more.
    objc::Ref<UITouch> touch;
  };
  struct Tap {
    CGPoint point;
    double time = -1;
    NSUInteger count = 0;
  };

  /// Shows the change to the gestures of the system. Is the finger still one for the windows then?
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
  /// The one that the system's gestures are just looking at.
  std::optional<int> shown_;
  Tap last_tap_;
};

/// Takes every touch away from the views and recognisers that have it; they hear that it is
/// cancelled. A finger that stays on the screen means nothing to anybody until it is lifted, but
/// for one that a gesture of the system has taken: that stays with it.
void cancel_every_touch();

/// Takes the fingers away that lie on the view or on anything in it: views and recognisers hear
/// that they are cancelled, and no view hears of these fingers again until they land anew. Those
/// that `but_for` sees stay.
void cancel_touches_in(UIView view, UIGestureRecognizer but_for = nil);

/// A screen that is off feels no finger. Those that are on it are taken from everybody, and from
/// the system's gestures as well; one that outlasts the dark is ignored until it is lifted.
void set_touches_enabled(bool enabled);

}  // namespace host::uikit
