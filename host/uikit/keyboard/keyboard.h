#pragma once

#include "host/uikit/keyboard/key_touches.h"
#include "host/uikit/keyboard/keyboard_slide.h"

namespace host::uikit {

/// The on-screen keyboard of this process: it comes for whoever takes text and goes with the last
/// one.
class Keyboard {
 public:
  Keyboard();
  ~Keyboard();
  Keyboard(const Keyboard&) = delete;
  Keyboard& operator=(const Keyboard&) = delete;

  void first_responder_changed();
  /// By whatever keyboard.
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

/// The keyboard, once somebody has needed one; else nullptr.
Keyboard* present_keyboard();
/// A test's screen ends: the keyboard goes with it.
void forget_keyboard();
/// From now on a keyboard comes when it is needed.
void watch_first_responder();

}  // namespace host::uikit
