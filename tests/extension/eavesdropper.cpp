// An extension that observes touches on icons: it replaces the icon view's method for the end of a
// touch and the delegate's method for a tap, and counts the calls of both.

#include "objc/hook.h"
#include "platform/Foundation/NSObject.h"

namespace {

int lifted_fingers = 0;
int tapped_icons = 0;

void touches_ended(objc::Object view, objc::Object touches, objc::Object event) {
  ++lifted_fingers;
  objc::original<&touches_ended>(view, touches, event);
}

void icon_tapped(objc::Object controller, objc::Object icon_view) {
  ++tapped_icons;
  objc::original<&icon_tapped>(controller, icon_view);
}

int count_lifted(objc::Object) {
  return lifted_fingers;
}

int count_tapped(objc::Object) {
  return tapped_icons;
}

[[gnu::constructor]] void load() {
  objc::hook<"SBIconView", "touchesEnded:withEvent:", &touches_ended>();
  objc::hook<"SBIconController", "iconTapped:", &icon_tapped>();
  objc::ClassBuilder("Eavesdropper", "NSObject")
      .class_method<&count_lifted>("liftedFingers")
      .class_method<&count_tapped>("tappedIcons")
      .finish();
}

}  // namespace
