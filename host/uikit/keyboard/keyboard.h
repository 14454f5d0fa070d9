#pragma once

#include "host/uikit/keyboard/key_touches.h"
#include "host/uikit/keyboard/keyboard_slide.h"

namespace host::uikit {

/// The on-screen keyboard of this process: it appears when a responder takes text and goes when
/// none does.
class Keyboard {
 public:
  Keyboard();
  ~Keyboard();
  Keyboard(const Keyboard&) = delete;
  Keyboard& operator=(const Keyboard&) = delete;

  void first_responder_changed();
  /// Text has been typed, on either keyboard.
  void text_typed();

  bool is_shown() const { return slide_.is_shown(); }
  UIWindow window() const { return slide_.window(); }
  KeyplaneView& keys() const { return objc::state_of<KeyplaneView>(view_.get()); }
  const KeyboardTyping& typing() const { return typing_; }

 private:
  static objc::Ref<UIKBKeyplaneView> make_view();
  void show_keys();

  objc::Ref<UIKBKeyplaneView> view_;
  KeyboardSlide slide_;
  KeyboardTyping typing_;
  KeyTouches touches_;
};

/// Returns the keyboard once one has been needed, otherwise nullptr.
Keyboard* present_keyboard();
/// Destroys the keyboard when a test's screen ends.
void forget_keyboard();
/// From now on the keyboard appears when it is needed.
void watch_first_responder();

}  // namespace host::uikit
