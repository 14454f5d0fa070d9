#include "host/activator/gesture/button_gestures.h"

#include <utility>

#include "host/activator/event/event_kinds.h"

namespace host::activator {
namespace {

// In seconds.
constexpr double kHomeHoldTime = 0.6;
constexpr double kLockHoldTime = 1;
/// Two buttons are never pressed at exactly the same moment, and light presses may not even
/// overlap.
constexpr double kTogether = 0.15;

}  // namespace

ButtonGestures::~ButtonGestures() {
  for (const State& button : states_) {
    if (button.hold != 0) loop_.remove_timer(button.hold);
  }
}

void ButtonGestures::down(Button button) {
  State& pressed = state(button);
  if (std::exchange(pressed.is_down, true)) return;
  pressed.is_consumed = false;
  pressed.pressed = loop_.now();
  switch (button) {
    case Button::Home:
      return watch_hold(button, kHomeHold, kHomeHoldTime);
    case Button::Lock:
      return watch_hold(button, kLockHold, kLockHoldTime);
    case Button::VolumeUp:
      return watch_pair(button, Button::VolumeDown);
    case Button::VolumeDown:
      return watch_pair(button, Button::VolumeUp);
  }
}

ButtonGestures::Press ButtonGestures::up(Button button) {
  State& released = state(button);
  if (released.hold != 0) loop_.remove_timer(std::exchange(released.hold, 0));
  released.is_down = false;
  return released.is_consumed ? Press::Consumed : Press::Plain;
}

void ButtonGestures::watch_hold(Button button, const char* event, double duration) {
  state(button).hold = loop_.add_timer(loop_.now() + duration, 0, [this, button, event] {
    state(button).hold = 0;
    state(button).is_consumed = recognized_(event);
  });
}

void ButtonGestures::watch_pair(Button button, Button other) {
  State& first = state(other);
  const bool together = first.is_down || loop_.now() - first.pressed <= kTogether;
  if (first.pressed < 0 || !together) return;
  // Each press is part of at most one pair.
  first.pressed = -1;
  state(button).pressed = -1;
  state(button).is_consumed = recognized_(kVolumeBoth);
}

}  // namespace host::activator
