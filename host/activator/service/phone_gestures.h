#pragma once

#include <string_view>

#include "host/activator/gesture/button_gestures.h"
#include "host/activator/gesture/touch_gestures.h"

namespace host::activator {

/// Turns input into events of the service. The caller reports buttons and keys; fingers are
/// observed directly.
class PhoneGestures {
 public:
  /// The name of the key that makes the keyboard's event.
  static constexpr std::string_view kChord = "control-g";

  PhoneGestures(RunLoop& loop, CGSize screen);
  ~PhoneGestures();
  PhoneGestures(const PhoneGestures&) = delete;
  PhoneGestures& operator=(const PhoneGestures&) = delete;

  ButtonGestures& buttons() { return buttons_; }
  /// Returns false when no listener receives it; the key may have another meaning then.
  bool press_key(std::string_view name);
  void shake();

 private:
  TouchGestures touches_;
  ButtonGestures buttons_;
};

/// Makes an event happen in the current mode, with or without a listener. Returns false, and does
/// nothing, for an unknown name.
bool perform_event(std::string_view name);

}  // namespace host::activator
