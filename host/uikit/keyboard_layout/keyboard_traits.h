#pragma once

#include "platform/UIKit/UIResponder.h"
#include "platform/UIKit/UITextInputTraits.h"

namespace host::uikit {

/// What a text input requests of the keyboard.
struct KeyboardTraits {
  UIKeyboardType type = UIKeyboardTypeDefault;
  UIKeyboardAppearance appearance = UIKeyboardAppearanceDefault;
  UIReturnKeyType return_key = UIReturnKeyDefault;
  UITextAutocapitalizationType autocapitalization = UITextAutocapitalizationTypeNone;

  friend constexpr bool operator==(const KeyboardTraits&, const KeyboardTraits&) = default;
};

/// Returns the responder's traits; any that it does not implement keep their defaults.
KeyboardTraits traits_of(UIResponder taker);

/// Returns whether the responder takes text and so needs a keyboard.
bool takes_text(UIResponder responder);

}  // namespace host::uikit
