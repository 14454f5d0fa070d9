#pragma once

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIEvent.h"
#include "platform/UIKit/UIWindow.h"

namespace host::springboard {

struct SBSurfaceWindow : objc::Bound<SBSurfaceWindow, "SBSurfaceWindow", UIWindow> {};

/// A full-screen window that receives the touches on its views and lets all others through.
class SurfaceWindow : public objc::Implementation<SurfaceWindow, SBSurfaceWindow> {
 public:
  using Implementation::Implementation;

  UIView hit_test(CGPoint point, UIEvent event);
  BOOL should_create_context_as_secure() { return YES; }
};

/// Returns a new window, initially hidden.
objc::Ref<UIWindow> make_surface_window(UIWindowLevel level);

void export_surface_window();

}  // namespace host::springboard
