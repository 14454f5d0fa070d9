#pragma once

#include "platform/UIKit/UIEvent.h"

struct UIResponder : objc::Bound<UIResponder, "UIResponder", NSObject> {
  UIResponder nextResponder() const { return call<"nextResponder", UIResponder>(); }
  BOOL canBecomeFirstResponder() const { return call<"canBecomeFirstResponder", BOOL>(); }
  BOOL becomeFirstResponder() const { return call<"becomeFirstResponder", BOOL>(); }
  BOOL canResignFirstResponder() const { return call<"canResignFirstResponder", BOOL>(); }
  BOOL resignFirstResponder() const { return call<"resignFirstResponder", BOOL>(); }
  BOOL isFirstResponder() const { return call<"isFirstResponder", BOOL>(); }
  /// Makes the keyboard read the first responder's text input traits again.
  void reloadInputViews() const { call<"reloadInputViews">(); }

  void touchesBegan(NSSet touches, UIEvent event) const {
    call<"touchesBegan:withEvent:">(touches, event);
  }
  void touchesMoved(NSSet touches, UIEvent event) const {
    call<"touchesMoved:withEvent:">(touches, event);
  }
  void touchesEnded(NSSet touches, UIEvent event) const {
    call<"touchesEnded:withEvent:">(touches, event);
  }
  void touchesCancelled(NSSet touches, UIEvent event) const {
    call<"touchesCancelled:withEvent:">(touches, event);
  }
};
