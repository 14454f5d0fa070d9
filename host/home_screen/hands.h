#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/activator/service/phone_gestures.h"
#include "host/runtime/run_loop.h"
#include "host/screen/input.h"
#include "host/springboard/system/system_actions.h"
#include "host/uikit/touch/touch_input.h"

namespace host::launcher {

/// The user's hands on the phone: fingers, keyboard and buttons, for both the window and the
/// console.
class Hands {
 public:
  /// The reason for a failure; nothing on success.
  using Refusal = std::optional<std::string>;

  /// `screen` is in points.
  Hands(RunLoop& loop, CGSize screen) : loop_(loop), gestures_(loop, screen) {}

  void touch(int finger, screen::TouchPhase phase, CGPoint point);
  Refusal wheel(CGPoint point, CGPoint by, screen::WheelKind kind);
  Refusal type(std::string_view text);
  /// Sets the text that an input method is composing; `caret` counts code points.
  Refusal compose(std::string_view text, int caret);
  /// Presses a key by its name, which may have the prefixes `control-` and `shift-`. The space that
  /// the key `space` types into a field comes as text.
  Refusal key(std::string_view name);
  static std::optional<CGRect> caret() { return springboard::caret_on_screen(); }
  Refusal right_click(CGPoint point);
  /// Presses and releases a button.
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
