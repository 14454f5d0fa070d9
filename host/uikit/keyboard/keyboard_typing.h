#pragma once

#include <functional>
#include <string>

#include "host/uikit/keyboard_layout/key.h"
#include "host/uikit/keyboard_layout/keyboard_traits.h"
#include "host/uikit/keyboard_layout/shift_state.h"

namespace host::uikit {

/// What the keys of the on-screen keyboard do. It types through the same door as a physical
/// keyboard.
class KeyboardTyping {
 public:
  /// `on_change` is called when other keys have to be shown than before, or shift has changed.
  explicit KeyboardTyping(std::function<void()> on_change) : on_change_(std::move(on_change)) {}

  /// Somebody new takes the text.
  void begin(const KeyboardTraits& traits);
  /// The text has changed by other means, and with it whether a capital is due.
  void look_at_text();

  KeyPlane plane() const { return plane_; }
  ShiftState::Value shift() const { return shift_.value(); }
  const KeyboardTraits& traits() const { return traits_; }

  /// The text of a character key as it would be typed now: in capitals, perhaps.
  std::string in_case(const std::string& text) const;
  /// Types it as it is.
  void type(const std::string& text);
  void press_return();
  void press_backspace();
  void press_shift(double time);
  void release_shift();
  void show_plane(KeyPlane plane);

 private:
  bool wants_capital() const;

  std::function<void()> on_change_;
  KeyboardTraits traits_;
  KeyPlane plane_ = KeyPlane::Letters;
  ShiftState shift_;
};

}  // namespace host::uikit
