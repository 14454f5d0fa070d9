#pragma once

#include <map>
#include <optional>

#include "host/screen/held_buttons.h"
#include "host/screen/phone_body.h"

namespace host::screen {

/// The mouse and the fingers on the phone. One that goes down on a button presses it; one that goes
/// down on the glass around the screen touches the screen from where it slides onto it, as a finger
/// does that comes in over the edge. Points are of the body.
class Pointers {
 public:
  Pointers(const PhoneBody& body, Input& input, HeldButtons& buttons)
      : body_(body), input_(input), buttons_(buttons) {}

  /// `clicks` counts quick ones at the same place: the second on the Home button is a double press.
  void down(int finger, CGPoint point, int clicks = 1);
  void moved(int finger, CGPoint point);
  void up(int finger, CGPoint point);
  /// A light touch, twice, where it lands on the Home button.
  void touch_lightly(CGPoint point) const;

 private:
  struct Pointer {
    std::optional<Button> button;
    bool touches = false;
    /// Where it last was beside the screen.
    CGPoint outside;
  };
  CGPoint on_screen(CGPoint point) const;

  const PhoneBody& body_;
  Input& input_;
  HeldButtons& buttons_;
  std::map<int, Pointer> down_;
};

}  // namespace host::screen
