#pragma once

#include "host/uikit/view/window.h"

namespace host::uikit {

struct UITextEffectsWindow : objc::Bound<UITextEffectsWindow, "UITextEffectsWindow", UIWindow> {};

/// A window as large as the screen, for what belongs to text and lies above everything else.
/// Fingers that touch nothing in it reach the windows below. It is also shown over the lock screen,
/// where fields are typed into as well.
class EffectsWindow : public objc::Implementation<EffectsWindow, UITextEffectsWindow> {
 public:
  explicit EffectsWindow(UITextEffectsWindow owner) : Implementation(owner) {}

  UIView hit_test(CGPoint point, UIEvent event);
  BOOL should_create_context_as_secure() { return YES; }

  /// Called when a finger lands elsewhere on the screen.
  void (*on_touch_beside)() = nullptr;
};

/// Above alerts and any window that an extension may have placed high.
inline constexpr UIWindowLevel kKeyboardWindowLevel = 10'000'000;
/// Menus and handles of text are above the keyboard.
inline constexpr UIWindowLevel kTextMenuWindowLevel = kKeyboardWindowLevel + 1;

/// Returns a new, hidden window of this kind; the caller owns it.
UITextEffectsWindow make_effects_window(UIWindowLevel level);

void export_effects_window();

}  // namespace host::uikit
