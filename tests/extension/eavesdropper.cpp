// An extension that observes touches on icons: it replaces the icon view's method for the end of a
// touch and the delegate's method for a tap, and counts the calls of both.

#include "objc/class_builder.h"
#include "platform/Foundation/NSObject.h"

extern "C" void MSHookMessageEx(objc::Class cls, objc::Sel selector, objc::Imp replacement,
                                objc::Imp* original);

namespace {

int lifted_fingers = 0;
int tapped_icons = 0;
objc::Imp ended_before = nullptr;
objc::Imp tapped_before = nullptr;

void touches_ended(objc::Id self, objc::Sel selector, objc::Id touches, objc::Id event) {
  ++lifted_fingers;
  using Body = void (*)(objc::Id, objc::Sel, objc::Id, objc::Id);
  reinterpret_cast<Body>(ended_before)(self, selector, touches, event);
}

void icon_tapped(objc::Id self, objc::Sel selector, objc::Id icon_view) {
  ++tapped_icons;
  using Body = void (*)(objc::Id, objc::Sel, objc::Id);
  reinterpret_cast<Body>(tapped_before)(self, selector, icon_view);
}

int count_lifted(objc::Object) {
  return lifted_fingers;
}

int count_tapped(objc::Object) {
  return tapped_icons;
}

[[gnu::constructor]] void load() {
  MSHookMessageEx(objc_getClass("SBIconView"), "touchesEnded:withEvent:"_sel,
                  reinterpret_cast<objc::Imp>(&touches_ended), &ended_before);
  MSHookMessageEx(objc_getClass("SBIconController"), "iconTapped:"_sel,
                  reinterpret_cast<objc::Imp>(&icon_tapped), &tapped_before);
  objc::ClassBuilder("Eavesdropper", "NSObject")
      .class_method<&count_lifted>("liftedFingers")
      .class_method<&count_tapped>("tappedIcons")
      .finish();
}

}  // namespace
