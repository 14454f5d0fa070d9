#include "host/uikit/text/effects_window.h"

#include "platform/UIKit/UIScreen.h"

namespace host::uikit {

UIView EffectsWindow::hit_test(CGPoint point, UIEvent event) {
  const UIView hit = super<UIView>("hitTest:withEvent:"_sel, point, event);
  if (hit && hit != self) return hit;
  if (on_touch_beside) on_touch_beside();
  return nil;
}

UITextEffectsWindow make_effects_window(UIWindowLevel level) {
  const auto window = objc::cast<UITextEffectsWindow>(
      UITextEffectsWindow::alloc().initWithFrame(UIScreen::mainScreen().bounds()));
  window.setWindowLevel(level);
  return window;
}

void export_effects_window() {
  if (UITextEffectsWindow::cls()) return;
  objc::ClassBuilder("UITextEffectsWindow", "UIWindow")
      .state<EffectsWindow>()
      .method<&EffectsWindow::hit_test>("hitTest:withEvent:")
      .method<&EffectsWindow::should_create_context_as_secure>("_shouldCreateContextAsSecure")
      .finish();
}

}  // namespace host::uikit
