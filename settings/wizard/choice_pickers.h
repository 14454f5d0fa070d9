#pragma once

#include "objc/own_class.h"
#include "platform/UIKit/UIPickerView.h"

// What fills a wheel of the wizard. Both are wheels themselves by their class, which nobody sees.

/// Colours, stored under the key that it is given. A class of the extension's own.
struct Tint : objc::Own<Tint, "Tint", UIPickerView> {
  void setKey(NSString key) const { call<"setKey:">(key); }
};

/// What the ring shows. A class of the extension's own.
struct Play : objc::Own<Play, "Play", UIPickerView> {
  void setKey(NSString key) const { call<"setKey:">(key); }
};

namespace sonavue {

void make_choice_pickers();

}  // namespace sonavue
