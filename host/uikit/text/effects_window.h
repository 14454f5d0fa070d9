#pragma once

#include "host/uikit/view/window.h"

namespace host::uikit {

struct UITextEffectsWindow : objc::Bound<UITextEffectsWindow, "UITextEffectsWindow", UIWindow> {};

/// A window as large as the screen for what goes with text and lies above everything else: fingers
/// that touch nothing in it reach the windows below. It also shows over the lock screen, as fields
/// there are typed into as well.
class EffectsWindow : public objc::Implementation<EffectsWindow, UITextEffectsWindow> {
 public:
  explicit EffectsWindow(UITextEffectsWindow owner) : Implementation(owner) {}

  UIView hit_test(CGPoint point, UIEvent event);
  BOOL should_create_context_as_secure() { return YES; }

  /// Called when a finger lands somewhere else on the screen.
  void (*on_touch_beside)() = nullptr;
};

/// Above alerts and whatever else an extension may have put high.
inline constexpr UIWindowLevel kKeyboardWindowLevel = 10'000'000;
/// Menus and handles of text lie above the keyboard.
inline constexpr UIWindowLevel kTextMenuWindowLevel = kKeyboardWindowLevel + 1;

/// A new window of this kind, hidden (+1).
UITextEffectsWindow make_effects_window(UIWindowLevel level);

void export_effects_window();

}  // namespace host::uikit
