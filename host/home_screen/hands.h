#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/activator/service/phone_gestures.h"
#include "host/runtime/run_loop.h"
#include "host/screen/input.h"
#include "host/uikit/touch/touch_input.h"

namespace host::launcher {

/// Whoever holds the phone: fingers, keyboard and buttons, for the window and the console alike.
class Hands {
 public:
  /// Why it could not be done; nothing when it was.
  using Refusal = std::optional<std::string>;

  /// `screen` is in points.
  Hands(RunLoop& loop, CGSize screen) : loop_(loop), gestures_(loop, screen) {}

  void touch(int finger, screen::TouchPhase phase, CGPoint point);
  Refusal type(std::string_view text);
  /// What an input method is composing; `caret` counts code points.
  Refusal compose(std::string_view text, int caret);
  /// A key of the keyboard by its name; `control-` and `shift-` may stand before it.
  Refusal key(std::string_view name);
  /// Down and up again.
  Refusal press(screen::Button button);
  Refusal button(screen::Button button, screen::ButtonPhase phase);
  void shake() { gestures_.shake(); }

 private:
  void push(screen::Button button);
  void let_go(screen::Button button);

  RunLoop& loop_;
  activator::PhoneGestures gestures_;
  uikit::TouchInput touches_;
};

}  // namespace host::launcher
