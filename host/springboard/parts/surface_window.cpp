#include "host/springboard/parts/surface_window.h"

namespace host::springboard {

UIView SurfaceWindow::hit_test(CGPoint point, UIEvent event) {
  const UIView hit = super<UIView>("hitTest:withEvent:"_sel, point, event);
  return hit == self ? UIView() : hit;
}

objc::Ref<UIWindow> make_surface_window(UIWindowLevel level) {
  const auto window =
      objc::cast<UIWindow>(SBSurfaceWindow::alloc().initWithFrame(UIScreen::mainScreen().bounds()));
  window.setWindowLevel(level);
  return objc::Ref<UIWindow>::adopt(window);
}

void export_surface_window() {
  objc::ClassBuilder("SBSurfaceWindow", "UIWindow")
      .state<SurfaceWindow>()
      .method<&SurfaceWindow::hit_test>("hitTest:withEvent:")
      .method<&SurfaceWindow::should_create_context_as_secure>("_shouldCreateContextAsSecure")
      .finish();
}

}  // namespace host::springboard
