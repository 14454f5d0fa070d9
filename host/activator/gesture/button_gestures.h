#pragma once

#include <array>

#include "host/activator/gesture/touch_gestures.h"
#include "host/runtime/run_loop.h"

namespace host::activator {

/// Recognises the events of buttons: holding Home or the lock button, and both volume buttons at
/// once.
class ButtonGestures {
 public:
  enum class Button { Home, Lock, VolumeUp, VolumeDown };
  /// The result of a press when the button comes up: the button's own action, or nothing, because a
  /// listener received the press as an event.
  enum class Press { Plain, Consumed };

  ButtonGestures(RunLoop& loop, Recognized recognized)
      : loop_(loop), recognized_(std::move(recognized)) {}
  ~ButtonGestures();
  ButtonGestures(const ButtonGestures&) = delete;
  ButtonGestures& operator=(const ButtonGestures&) = delete;

  /// A no-op for a button that is already down.
  void down(Button button);
  Press up(Button button);

 private:
  struct State {
    bool is_down = false;
    bool is_consumed = false;
    double pressed = -1;
    RunLoop::Id hold = 0;
  };

  State& state(Button button) { return states_[static_cast<std::size_t>(button)]; }
  void watch_hold(Button button, const char* event, double duration);
  void watch_pair(Button button, Button other);

  RunLoop& loop_;
  const Recognized recognized_;
  std::array<State, 4> states_;
};

}  // namespace host::activator
