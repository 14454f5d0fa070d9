#pragma once

#include <map>

#include "objc/ref.h"
#include "platform/UIKit/UITouch.h"

namespace host::uikit {

/// Where fingers come in: makes touches of them, finds the window and the view that they land on,
/// and sends the event. Points are of the screen, in points from its top left corner; timestamps
/// are seconds of the clock.
class TouchInput {
 public:
  void began(int finger, CGPoint screen_point, double timestamp);
  void moved(int finger, CGPoint screen_point, double timestamp);
  void ended(int finger, CGPoint screen_point, double timestamp);
  /// The system takes the finger away, when the screen locks for instance.
  void cancelled(int finger, CGPoint screen_point, double timestamp);
  void cancel_all(double timestamp);

 private:
  struct Tap {
    CGPoint point;
    double time = -1;
    NSUInteger count = 0;
  };

  /// Has a gesture of the system taken the finger, now or before? It is with no window then.
  bool is_the_systems(int finger, UITouchPhase phase, CGPoint screen_point, double timestamp);
  void move(int finger, CGPoint screen_point, double timestamp);
  NSUInteger count_tap(CGPoint point, double timestamp);
  void lift(int finger, CGPoint screen_point, double timestamp, UITouchPhase phase);
  void send(UITouch touch, double timestamp);

  std::map<int, objc::Ref<UITouch>> fingers_;
  Tap last_tap_;
};

}  // namespace host::uikit
