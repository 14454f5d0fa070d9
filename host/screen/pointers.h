#pragma once

#include <map>
#include <optional>

#include "host/screen/held_buttons.h"
#include "host/screen/phone_body.h"

namespace host::screen {

/// The mouse and the fingers on the phone. A pointer that goes down on a button presses it. One
/// that goes down on the glass around the screen touches the screen where it slides onto it, like a
/// finger that comes in over the edge. Points are in the body's coordinates.
class Pointers {
 public:
  Pointers(const PhoneBody& body, Input& input, HeldButtons& buttons)
      : body_(body), input_(input), buttons_(buttons) {}

  /// `clicks` is the number of quick clicks at the same place. The second one on the Home button is
  /// a double press.
  void down(int finger, CGPoint point, int clicks = 1);
  void moved(int finger, CGPoint point);
  void up(int finger, CGPoint point);
  /// The other mouse button. On the Home button it touches that twice without pressing it.
  void right_click(CGPoint point) const;

 private:
  struct Pointer {
    std::optional<Button> button;
    bool touches = false;
    /// Its last position outside the screen.
    CGPoint outside;
  };
  CGPoint on_screen(CGPoint point) const;

  const PhoneBody& body_;
  Input& input_;
  HeldButtons& buttons_;
  std::map<int, Pointer> down_;
};

}  // namespace host::screen
