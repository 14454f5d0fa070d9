#pragma once

#include "objc/own_class.h"
#include "platform/UIKit/UIPickerView.h"

// The sources of the wizard's wheels. Both derive from UIPickerView but are never shown.

/// Colours; the choice is stored under the key that is set. One of the extension's own classes.
struct Tint : objc::Own<Tint, "Tint", UIPickerView> {
  void setKey(NSString key) const { call<"setKey:">(key); }
};

/// What the ring shows; the choice is stored under the key that is set. One of the extension's own
/// classes.
struct Play : objc::Own<Play, "Play", UIPickerView> {
  void setKey(NSString key) const { call<"setKey:">(key); }
};

namespace sonavue {

void make_choice_pickers();

}  // namespace sonavue
