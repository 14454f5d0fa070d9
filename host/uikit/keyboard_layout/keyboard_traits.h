#pragma once

#include "platform/UIKit/UIResponder.h"
#include "platform/UIKit/UITextInputTraits.h"

namespace host::uikit {

/// What whoever takes text asks of the keyboard.
struct KeyboardTraits {
  UIKeyboardType type = UIKeyboardTypeDefault;
  UIKeyboardAppearance appearance = UIKeyboardAppearanceDefault;
  UIReturnKeyType return_key = UIReturnKeyDefault;
  UITextAutocapitalizationType autocapitalization = UITextAutocapitalizationTypeNone;

  friend constexpr bool operator==(const KeyboardTraits&, const KeyboardTraits&) = default;
};

/// What a responder does not answer keeps its standard value.
KeyboardTraits traits_of(UIResponder taker);

/// Does the responder take text, so that a keyboard comes for it?
bool takes_text(UIResponder responder);

}  // namespace host::uikit
