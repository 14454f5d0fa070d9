#pragma once

#include "host/quartzcore/drawing/color.h"
#include "platform/UIKit/UITextInputTraits.h"

namespace host::uikit {

/// The colours of a keyboard.
struct KeyboardLook {
  using Rgba = quartzcore::Rgba;

  Rgba ground;
  Rgba key;
  Rgba function_key;
  Rgba action_key;
  Rgba shadow;
  Rgba text;
  Rgba action_text;
  /// The cell under the finger among a letter's accents, and the letter in it.
  Rgba chosen;
  Rgba chosen_text;
  /// The lines between the cells of a number pad.
  Rgba line;
};

/// Returns the dark look when `appearance` requests it, otherwise the light one.
const KeyboardLook& look_of(UIKeyboardAppearance appearance);

}  // namespace host::uikit
