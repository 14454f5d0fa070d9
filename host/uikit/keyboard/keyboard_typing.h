#pragma once

#include <functional>
#include <string>

#include "host/uikit/keyboard_layout/key.h"
#include "host/uikit/keyboard_layout/keyboard_traits.h"
#include "host/uikit/keyboard_layout/shift_state.h"

namespace host::uikit {

/// What the keys of the on-screen keyboard do. It types by the same functions as the physical
/// keyboard.
class KeyboardTyping {
 public:
  /// `on_change` is called when other keys have to be shown, or shift has changed.
  explicit KeyboardTyping(std::function<void()> on_change) : on_change_(std::move(on_change)) {}

  /// Another responder takes the text.
  void begin(const KeyboardTraits& traits);
  /// The text has changed by other means: checks again whether a capital is due.
  void look_at_text();

  KeyPlane plane() const { return plane_; }
  ShiftState::Value shift() const { return shift_.value(); }
  const KeyboardTraits& traits() const { return traits_; }

  /// Returns the text of a character key as it would be typed now, possibly capitalized.
  std::string in_case(const std::string& text) const;
  /// Types the text unchanged.
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
