#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/runtime/run_loop.h"
#include "host/screen/input.h"
#include "host/uikit/gesture/touch_input.h"

namespace host::launcher {

/// Whoever holds the phone: fingers, keyboard and buttons, for the window and the console alike.
class Hands {
 public:
  /// Why it could not be done; nothing when it was.
  using Refusal = std::optional<std::string>;

  explicit Hands(RunLoop& loop) : loop_(loop) {}

  void touch(int finger, screen::TouchPhase phase, CGPoint point);
  Refusal type(std::string_view text);
  Refusal key(std::string_view name);
  Refusal press(screen::Button button);

 private:
  RunLoop& loop_;
  uikit::TouchInput touches_;
};

}  // namespace host::launcher
