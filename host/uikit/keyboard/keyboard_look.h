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
  /// The cell under the finger among a letter's relatives, and its letter.
  Rgba chosen;
  Rgba chosen_text;
  /// Between the cells of a number pad.
  Rgba line;
};

/// The light look unless the dark one is asked for.
const KeyboardLook& look_of(UIKeyboardAppearance appearance);

}  // namespace host::uikit
