#pragma once

#include <string_view>

#include "host/activator/gesture/button_gestures.h"
#include "host/activator/gesture/touch_gestures.h"

namespace host::activator {

/// Turns what is done to the phone into events of the service: whoever holds the phone tells it of
/// buttons and of keys, fingers it sees for itself.
class PhoneGestures {
 public:
  /// The key that makes the event of the keyboard, by its name.
  static constexpr std::string_view kChord = "control-g";

  PhoneGestures(RunLoop& loop, CGSize screen);
  ~PhoneGestures();
  PhoneGestures(const PhoneGestures&) = delete;
  PhoneGestures& operator=(const PhoneGestures&) = delete;

  ButtonGestures& buttons() { return buttons_; }
  /// False when nobody hears it: the key may mean something else then.
  bool press_key(std::string_view name);
  void shake();

 private:
  TouchGestures touches_;
  ButtonGestures buttons_;
};

/// Makes an event happen in the present mode, heard or not; false, and nothing, for an unknown
/// name.
bool perform_event(std::string_view name);

}  // namespace host::activator
